#include "GUI/Presets/CategoryParam.h"

#include "GUI/Presets/SaveTarget.h"

namespace Zn::GUI
{
CategoryParam::CategoryParam (juce::StringArray existingCategories,
                              juce::String first,
                              CallbackFunc askForNew)
    : categories (std::move (existingCategories)), onAskForNew (std::move (askForNew))
{
    categories.removeEmptyStrings();
    categories.removeDuplicates (true);
    categories.sortNatural();
    categories.insert (0, {});
    set (first);
}

void CategoryParam::set (const juce::String& newCategory)
{
    const auto wanted = newCategory == textOf ({}) ? juce::String() : newCategory.trim();
    const auto known = categories.indexOf (wanted, true);

    category = known >= 0 ? categories[known] : SaveTarget::legalName (wanted);
    categories.addIfNotAlreadyThere (category);
}

juce::String CategoryParam::textOf (const juce::String& category)
{
    return category.isEmpty() ? "No category" : category;
}

Parameters::MenuItems::Item CategoryParam::getMenuChoices()
{
    Parameters::MenuItems::Item menu { .text = getName() };

    for (const auto& one : categories)
        menu.subItems.push_back ({ .text = textOf (one),
                                   .isSelected = [this, one] { return category == one; },
                                   .action = [this, one] { set (one); } });

    menu.subItems.push_back ({});
    menu.subItems.push_back (
        { .text = juce::String::fromUTF8 ("New category\xe2\x80\xa6"), .action = onAskForNew });
    return menu;
}

float CategoryParam::getNormalised() const
{
    return static_cast<float> (index()) / static_cast<float> (getNumSteps());
}

void CategoryParam::setNormalisedNotifying (float normalised)
{
    setInt (juce::roundToInt (normalised * static_cast<float> (getNumSteps())));
}

void CategoryParam::setInt (int value)
{
    category = categories[juce::jlimit (0, categories.size() - 1, value)];
}

juce::String CategoryParam::getTextForNormalised (float normalised) const
{
    return textOf (categories[juce::roundToInt (normalised * static_cast<float> (getNumSteps()))]);
}
} // namespace Zn::GUI
