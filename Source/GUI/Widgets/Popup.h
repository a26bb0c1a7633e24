#pragma once

#include "GUI/Framework/AssetScheme/Element.h"
#include "GUI/Widgets/EditorContext.h"

namespace Zn::GUI
{
/** Base of what Overlay::openPopup shows: a card at its place in the scheme, a dialog to those who listen, out of
    which Tab does not lead. The first control in it gets the focus. Thread: message.
*/
class Popup : public AssetScheme::Element<>
{
public:
    /** The title is spoken; paintHeading writes it, too. */
    Popup (EditorContext& contextToUse, std::string element, const juce::String& title);

    /** Whether the page behind it steps back. */
    virtual bool dimsPage() const { return false; }

    void close() { context.overlay.closePopup(); }

    void paint (juce::Graphics& g) override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

protected:
    /** Left in an area, in the middle of its height. */
    void paintHeading (juce::Graphics& g, juce::Rectangle<int> area) const;

    /** Call it when overriding. */
    void schemeChanged() override;

    EditorContext& context;

private:
    juce::Font headingFont;
};
} // namespace Zn::GUI
