#include "GUI/Popups/TextPopup.h"

#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Framework/Resources.h"

#include <array>
#include <utility>

namespace Zn::GUI
{
namespace
{
juce::String embedded (const char* fileName)
{
    const auto text = textOf (contentOf (fileName));
    return juce::String::fromUTF8 (text.data(), static_cast<int> (text.size()));
}

/** Of a link its words, of code the code. */
juce::String withoutMarks (juce::String text)
{
    for (auto middle = text.indexOf ("]("); middle >= 0; middle = text.indexOf ("]("))
    {
        const auto start = text.substring (0, middle).lastIndexOfChar ('[');
        const auto end = text.indexOfChar (middle, ')');

        if (start < 0 || end < 0)
            break;

        text = text.substring (0, start) + text.substring (start + 1, middle) + text.substring (end + 1);
    }

    return text.removeCharacters ("`");
}
} // namespace

juce::String paragraphsOf (const juce::String& markdown)
{
    juce::StringArray paragraphs;
    auto isOpen = false; // whether the next line may go on with the last paragraph

    for (const auto& line : juce::StringArray::fromLines (markdown))
    {
        const auto text = line.trim();
        const auto isItem = text.startsWith ("- ");
        const auto isHeading = text.startsWith ("#");

        if (isOpen && text.isNotEmpty() && ! isItem && ! isHeading)
            paragraphs.getReference (paragraphs.size() - 1) << " " << text;
        else
            paragraphs.add (
                isItem ? juce::String (juce::CharPointer_UTF8 ("\xe2\x80\xa2 ")) + text.substring (2) : text);

        isOpen = text.isNotEmpty() && ! isHeading;
    }

    return withoutMarks (paragraphs.joinIntoString ("\n").trim());
}

std::unique_ptr<TextPopup> TextPopup::news (EditorContext& context)
{
    const auto versions = embedded ("CHANGELOG.md").fromFirstOccurrenceOf ("\n## ", true, false);
    return std::make_unique<TextPopup> (context, "What is new", paragraphsOf (versions));
}

std::unique_ptr<TextPopup> TextPopup::licences (EditorContext& context)
{
    constexpr std::array parts { std::pair { "Vornel and JUCE", "LICENSE" },
                                 std::pair { "nlohmann json", "nlohmann-json-MIT.txt" },
                                 std::pair { "Inter", "Inter-OFL.txt" },
                                 std::pair { "Orbitron", "Orbitron-OFL.txt" } };
    juce::String text;

    for (const auto& [name, file] : parts)
        text << "## " << name << "\n\n" << embedded (file).trimEnd() << "\n\n\n";

    return std::make_unique<TextPopup> (context, "Licences", text.trim());
}

TextPopup::TextPopup (EditorContext& contextToUse, const juce::String& title, juce::String textToShow)
    : Popup (contextToUse, "TextPopup", title)
    , body (contextToUse.canvas, std::move (textToShow))
    , closeButton (contextToUse, "TextPopupClose", {}, [this] { close(); })
{
    addAndMakeVisible (body);
    addAndMakeVisible (closeButton);
}

void TextPopup::paint (juce::Graphics& g)
{
    Popup::paint (g);
    paintHeading (g, { body.getX(), 0, body.getWidth(), body.getY() });
}

TextPopup::Body::Body (AssetScheme::Canvas& canvas, juce::String textToShow)
    : Element (canvas, "TextPopupBody"), text (std::move (textToShow))
{
    setMultiLine (true);
    setReadOnly (true);
    setCaretVisible (false);
    setEscapeAndReturnKeysConsumed (false);
}

void TextPopup::Body::schemeChanged()
{
    const auto usual = getCanvas().fontOf ("FontSmall");
    const auto heading = getCanvas().fontOf ("FontTitle", AssetScheme::Cut::bold);
    const auto inset = juce::roundToInt (getCanvas().pixelsOf ("PopupInset"));
    const auto colourOf = [] (const char* name) { return AssetScheme::Base::get().colourOf (name); };

    setIndents (inset, 0);
    setBorder ({ inset, 0, inset, 0 }); // an indent at the top is scrolled away by what shows the caret
    setLineSpacing (1.2f);
    clear();

    // Few pieces: each one that is added lays out all that is there.
    juce::String piece;
    auto pieceIsHeading = false;
    const auto add = [&] {
        setFont (pieceIsHeading ? heading : usual);
        setColour (textColourId, colourOf (pieceIsHeading ? "Text" : "TextSecondary"));
        insertTextAtCaret (std::exchange (piece, {}));
    };

    for (const auto& line : juce::StringArray::fromLines (text))
    {
        if (const auto isHeading = line.startsWith ("#"); isHeading != pieceIsHeading)
        {
            add();
            pieceIsHeading = isHeading;
        }

        piece << (pieceIsHeading ? line.trimCharactersAtStart ("# ") : line) << "\n";
    }

    add();
    moveCaretToTop (false);
}
} // namespace Zn::GUI
