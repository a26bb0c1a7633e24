#include "Summary.h"

#include "PatternDrawing.h"
#include "Presets/Reflection/JsonText.h"

namespace Zn::PresetTool
{
namespace
{
using nlohmann::json;

juce::String textOf (const json& value)
{
    return juce::String::fromUTF8 (
        (value.is_string() ? value.get<std::string>() : Json::toText (value)).c_str());
}

/** A line for the values of a group, then those of the groups in it. */
void addValues (juce::String& text, const juce::String& path, const json& group)
{
    juce::StringArray values;

    for (const auto& [key, value] : group.items())
        if (! value.is_structured())
            values.add (juce::String::fromUTF8 (key.c_str()) + " " + textOf (value));

    if (! values.isEmpty())
        text << "  " << (path.isEmpty() ? path : path + ": ") << values.joinIntoString (", ") << '\n';

    for (const auto& [key, value] : group.items())
        if (value.is_object())
            addValues (text,
                       path.isEmpty() ? juce::String::fromUTF8 (key.c_str())
                                      : path + " / " + juce::String::fromUTF8 (key.c_str()),
                       value);
}

void addPatterns (juce::String& text, const Sequencer::PatternController::Slots& slots)
{
    juce::StringArray empty;

    for (auto number = 1; const auto& slot : slots)
    {
        const juce::String name (number++);

        if (slot.pattern.steps.empty())
            empty.add (name);
        else
            text << "\nPattern " << name << ": " << descriptionOf (slot) << '\n' << drawingOf (slot);
    }

    if (! empty.isEmpty())
        text << "\nEmpty: " << empty.joinIntoString (", ") << '\n';
}

void addSound (juce::String& text, json params)
{
    // The synth's own tree lies one level further down than its reader expects.
    if (const auto synth = params.find ("Synth"); synth != params.end() && synth->is_object())
    {
        const auto tree = *synth;
        params.erase (synth);
        params.update (tree);
    }

    text << "\nSound\n";
    addValues (text, {}, params);
}

void addSettings (juce::String& text, json params)
{
    if (! params.is_object())
    {
        text << "\nKeeps the sound and the settings that are set.\n";
        return;
    }

    const auto sound = params.value ("Synth", json::object());
    params.erase ("Synth");

    text << "\nSettings\n";
    addValues (text, {}, params);
    addSound (text, sound);
}

void addTransport (juce::String& text, const json& patterns)
{
    const auto transport = patterns.at ("Sequencer").at ("Transport");

    text << "Tempo " << textOf (transport.at ("BPM").at ("value")) << ", swing "
         << textOf (transport.at ("Swing").at ("Value")) << " of "
         << textOf (transport.at ("SwingRef").at ("Value")) << '\n';
}
} // namespace

juce::String summaryOf (const Preset& preset)
{
    LoadedPreset loaded (preset);
    const auto document = loaded.getDocument();

    juce::String text;
    text << preset.name << '\n'
         << preset.getKindName() << ", version " << textOf (preset.document.at ("version")) << ", "
         << textOf (document.at ("id")) << '\n';

    if (preset.kind == Kind::sound)
    {
        addSound (text, document.at ("Params"));
        return text;
    }

    addTransport (text, document.at ("Patterns"));
    addPatterns (text, loaded.getState().patterns.getSlots());
    addSettings (text, document.at ("Params"));
    return text;
}
} // namespace Zn::PresetTool
