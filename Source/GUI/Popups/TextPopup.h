#pragma once

#include "GUI/Widgets/Button.h"
#include "GUI/Widgets/Popup.h"

namespace Zn::GUI
{
/** A long text to be read, in which lines that begin with "#" are headings. Thread: message. */
class TextPopup : public Popup
{
public:
    TextPopup (EditorContext& contextToUse, const juce::String& title, juce::String textToShow);

    /** What has changed in each version. */
    static std::unique_ptr<TextPopup> news (EditorContext& context);

    /** Of the program and of what it is made with. */
    static std::unique_ptr<TextPopup> licences (EditorContext& context);

    bool dimsPage() const override { return true; }
    void paint (juce::Graphics& g) override;

private:
    struct Body : AssetScheme::Element<juce::TextEditor>
    {
        Body (AssetScheme::Canvas& canvas, juce::String textToShow);
        void schemeChanged() override;

        const juce::String text;
    };

    Body body;
    Button closeButton;
};

/** Lines of Markdown as paragraphs: those that are wrapped become one, lists have bullets. */
juce::String paragraphsOf (const juce::String& markdown);
} // namespace Zn::GUI
