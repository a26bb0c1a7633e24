#include "GUI/Popups/UpdateNotice.h"

#include "GUI/Popups/TextPopup.h"
#include "Presets/AtomicFile.h"
#include "Presets/Reflection/Build.h"

namespace Zn::GUI
{
UpdateNotice::UpdateNotice (EditorContext& contextToUse)
    : Popup (contextToUse, "UpdateNotice", "Updated to " + Build::version.toText())
    , news (
          context, "UpdateNoticeNews", {}, [this] { context.overlay.openPopup (TextPopup::news (context)); })
    , closeButton (context, "UpdateNoticeClose", {}, [this] { close(); })
{
    addAndMakeVisible (news);
    addAndMakeVisible (closeButton);
}

juce::File UpdateNotice::defaultFile()
{
    return UserSettings::defaultFile().getSiblingFile ("version.txt");
}

bool UpdateNotice::isDue (const juce::File& file, const Version& running)
{
    constexpr juce::int64 longestText = 64; // bytes
    const auto isReadable = file.existsAsFile() && file.getSize() <= longestText;
    const auto text = isReadable ? file.loadFileAsString().trim() : juce::String();
    const auto last = Version::fromText (text.toStdString());

    if (last == running)
        return false;

    file.getParentDirectory().createDirectory();
    Presets::replaceFile (file, running.toText(), Presets::Durability::canBeMadeAgain);
    return last != Version() && last < running;
}

void UpdateNotice::paint (juce::Graphics& g)
{
    Popup::paint (g);
    paintHeading (g, { news.getX(), 0, getWidth() - 2 * news.getX(), news.getY() });
}
} // namespace Zn::GUI
