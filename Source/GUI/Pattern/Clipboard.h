#pragma once

#include "Presets/Reflection/JsonText.h"
#include "Presets/Reflection/Loader.h"
#include "Presets/Reflection/Saver.h"

#include <juce_core/juce_core.h>

/** What is copied goes as text to the clipboard of the system, and so from one editor to another; without a screen it
    stays in the process. Thread: message.
*/
namespace Zn::GUI::Clipboard
{
void setText (const juce::String& text);
juce::String getText();

/** What is copied: the name that its document has on the clipboard, and what each such document has. */
struct Kind
{
    const char* name;
    const char* content;
};

/** Null when there is none of the kind. */
nlohmann::json getDocument (const Kind& kind);
void setDocument (const Kind& kind, nlohmann::json document);

template <Reflectable T>
void copy (const Kind& kind, T&& object)
{
    setDocument (kind, Json::save (object, ReflectorContext::forUndo()));
}

/** False when the clipboard holds no object of the kind, or one that cannot be read. */
template <Reflectable T>
bool paste (const Kind& kind, T&& object)
{
    auto document = getDocument (kind);

    if (document.is_null())
        return false;

    try
    {
        Json::load (object, document, ReflectorContext::forUndo());
        return true;
    }
    catch (const std::exception&)
    {
        return false; // text from elsewhere
    }
}
} // namespace Zn::GUI::Clipboard
