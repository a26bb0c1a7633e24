#include "GUI/Sound/WavetableChoice.h"

#include <algorithm>

namespace Zn::GUI
{
namespace
{
juce::String categoryOf (const juce::String& name)
{
    return name.upToFirstOccurrenceOf (" - ", false, false);
}
} // namespace

WavetableChoice::WavetableChoice (Audio::ParamHolder<Audio::WavetableSynth::OscillatorParam>& holder)
    : OSCForwarder (*holder, holder.getHostSide()), table (*holder)
{}

Parameters::MenuItems::Item WavetableChoice::getMenuChoices()
{
    Parameters::MenuItems::Item menu;

    for (int index = 0; index < table.choices.size(); ++index)
    {
        const auto& name = table.choices[index];
        const auto category = categoryOf (name);
        auto section = std::ranges::find (menu.subItems, category, &Parameters::MenuItems::Item::text);

        if (section == menu.subItems.end())
            section = menu.subItems.insert (section, { .text = category });

        section->subItems.push_back (createMenuChoice (name, index));
    }

    for (auto& section : menu.subItems)
        section.isSelected = [this, category = section.text] {
            return categoryOf (table.getCurrentChoiceName()) == category;
        };

    return menu;
}
} // namespace Zn::GUI
