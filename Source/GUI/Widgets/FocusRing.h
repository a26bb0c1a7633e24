#pragma once

#include "GUI/Widgets/EditorContext.h"

#include <memory>

namespace Zn::GUI
{
/** The white ring around a component that has the keyboard's focus, a little outside of it. It is there only while keys
    are in use. Thread: message.
*/
class FocusRing
{
public:
    FocusRing (juce::Component& component, const EditorContext& contextToUse);

    /** Whether a focus that comes so is shown: it comes from a key. */
    static bool isShownFor (juce::Component::FocusChangeType cause, const EditorContext& context);

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
    const EditorContext& context;
    std::unique_ptr<juce::FocusOutline> outline;
};
} // namespace Zn::GUI
