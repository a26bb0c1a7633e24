#pragma once

#include "GUI/Framework/AssetScheme/Canvas.h"

#include <memory>

namespace Zn::GUI
{
/** The white ring around a component that has the keyboard's focus, a little outside of it. It is there only while the
    focus is moved by keys. Thread: message.
*/
class FocusRing
{
public:
    FocusRing (juce::Component& component, const AssetScheme::Canvas& canvasToUse);

    /** To be told of the component's events of the same names. */
    void focusGained (juce::Component::FocusChangeType cause);
    void focusLost() { hide(); }
    void keyPressed() { show(); }
    void mousePressed() { hide(); }

    bool isShown() const noexcept { return outline != nullptr; }

private:
    void show();
    void hide() { outline.reset(); }

    juce::Component& owner;
    const AssetScheme::Canvas& canvas;
    std::unique_ptr<juce::FocusOutline> outline;
};
} // namespace Zn::GUI
