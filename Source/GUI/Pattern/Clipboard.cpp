#include "GUI/Pattern/Clipboard.h"

#include "Foundation/Singleton.h"

#include <juce_gui_basics/juce_gui_basics.h>

namespace Zn::GUI::Clipboard
{
namespace
{
struct OwnText
{
    juce::String text;
};

/** Without one, the system's clipboard must not even be asked. */
bool hasScreen()
{
    return ! juce::Desktop::getInstance().getDisplays().displays.isEmpty();
}
} // namespace

void setText (const juce::String& text)
{
    Singleton::get<OwnText>().text = text;

    if (hasScreen())
        juce::SystemClipboard::copyTextToClipboard (text);
}

juce::String getText()
{
    return hasScreen() ? juce::SystemClipboard::getTextFromClipboard() : Singleton::get<OwnText>().text;
}

nlohmann::json getDocument (const Kind& kind)
{
    const auto text = getText().trimStart();

    if (! text.startsWithChar ('{')) // whatever else people copy
        return nullptr;

    auto document = Json::parse (text.toStdString(), Json::largestPresetText);
    const auto found = document.is_object() ? document.find (kind.name) : document.end();
    const auto isOfKind = document.is_object() && found != document.end() && found->is_object()
                          && found->contains (kind.content);
    return isOfKind ? *found : nlohmann::json();
}

void setDocument (const Kind& kind, nlohmann::json document)
{
    setText (juce::String::fromUTF8 (Json::toText ({ { kind.name, std::move (document) } }).c_str()));
}
} // namespace Zn::GUI::Clipboard
