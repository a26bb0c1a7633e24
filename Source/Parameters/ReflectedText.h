#pragma once

#include "Presets/Reflection/Reflector.h"

namespace Zn::Parameters
{
/** Reads or writes one value as its display text.

    Loading accepts a number or a boolean too, as its decimal text ("1" or "0"), and calls setText (text) unless
    the key is absent. In a host chunk, and for undo, a text that is already shown changes nothing: texts are
    rounded, and the exact value must not be lost by a round trip. A preset file is always read, so that it
    always gives the same sound.
*/
template <typename GetText, typename SetText>
void reflectText (Reflector& r, const std::string& name, GetText&& getText, SetText&& setText);

/** What a document holds under a name as text; none when there is no value. */
std::optional<juce::String> loadedText (const ReflectedValue& value);

template <typename GetText, typename SetText>
void reflectText (Reflector& r, const std::string& name, GetText&& getText, SetText&& setText)
{
    if (! r.isLoading())
    {
        r.setValue (name, juce::String (getText()).toStdString());
        return;
    }

    const auto text = loadedText (r.getValue (name));

    if (text.has_value() && ! (r.isForHostChunk() && *text == getText()))
        setText (*text);
}
} // namespace Zn::Parameters
