#include "Sequencer/MidiPlayer/ChoiceParam.h"

#include "Sequencer/MidiPlayer/ChordFiles.h"
#include "Sequencer/MidiPlayer/ReadResource.h"

#include <cmath>

namespace Zn::Sequencer::MidiPlayer
{
namespace
{
constexpr auto none = 0, firstFile = 1;

int openIndex()
{
    return firstFile + chordFileNames().size();
}

bool isFromElsewhere (const Resource& resource) noexcept
{
    return resource.type == Resource::Type::binary || resource.type == Resource::Type::externalFile;
}

juce::String nameOf (const Resource& resource)
{
    return juce::String::fromUTF8 (resource.name.c_str());
}
} // namespace

juce::StringArray ChoiceParam::getChoices() const
{
    juce::StringArray choices ("None");
    choices.addArray (chordFileNames());
    choices.add ("Open...");

    if (const auto& resource = controller.get().resource; isFromElsewhere (resource))
        choices.add (nameOf (resource));

    return choices;
}

int ChoiceParam::getInt() const
{
    const auto& resource = controller.get().resource;

    if (isFromElsewhere (resource))
        return openIndex() + 1;

    return resource.type == Resource::Type::sharedBinary
               ? firstFile + chordFileNames().indexOf (nameOf (resource))
               : none;
}

void ChoiceParam::setInt (int index)
{
    if (index == openIndex())
        openWanted.callListeners();
    else if (index < openIndex())
        controller.choose (index >= firstFile ? embedded (chordFileNames()[index - firstFile]) : Resource {});
}

float ChoiceParam::getNormalised() const
{
    return static_cast<float> (getInt()) / static_cast<float> (getNumSteps());
}

void ChoiceParam::setDouble (double value)
{
    if (std::isfinite (value))
        setInt (static_cast<int> (std::lround (juce::jlimit (0.0, double (getNumSteps()), value))));
}

juce::String ChoiceParam::getTextForNormalised (float normalised) const
{
    return getChoices()[indexFrom (normalised)];
}

juce::String ChoiceParam::getCurrentText() const
{
    return getChoices()[getInt()];
}

void ChoiceParam::setFromText (const juce::String& text)
{
    const auto index = getChoices().indexOf (text);
    setInt (index == openIndex() ? none : index);
}

void ChoiceParam::setNormalisedNotifying (float normalised)
{
    setInt (indexFrom (normalised));
}

Parameters::MenuItems::Item ChoiceParam::getMenuChoices()
{
    Parameters::MenuItems::Item menu { .text = getName() };

    for (auto index = 0; const auto& choice : getChoices())
        menu.subItems.push_back (createMenuChoice (choice, index++));

    return menu;
}

void ChoiceParam::step (int direction)
{
    const auto numFiles = chordFileNames().size();

    // From elsewhere, and from None, one gets to the ends of the list.
    const auto current = getInt() < openIndex() ? getInt() - firstFile : -1;
    const auto next = current < 0 && direction < 0 ? numFiles - 1 : current + direction;

    if (numFiles > 0)
        setInt (firstFile + (next + numFiles) % numFiles);
}

int ChoiceParam::indexFrom (float normalised) const
{
    return juce::roundToInt (juce::jlimit (0.0f, 1.0f, normalised) * static_cast<float> (getNumSteps()));
}
} // namespace Zn::Sequencer::MidiPlayer
