#include "GUI/Editor/Menus.h"

#include <algorithm>

namespace Zn::GUI
{
namespace
{
using Parameters::MenuItems::Item;
using Owner = juce::Component::SafePointer<juce::Component>;

void addLines (juce::PopupMenu& target, const Item& menu, const Owner& owner, int& nextId);

juce::PopupMenu::Item lineOf (const Item& item, const Owner& owner, int& nextId)
{
    juce::PopupMenu::Item line (item.text);
    line.setID (nextId++).setTicked (item.isTicked());

    if (! item.subItems.empty())
    {
        line.subMenu = std::make_unique<juce::PopupMenu>();
        addLines (*line.subMenu, item, owner, nextId);
        return line;
    }

    line.setAction ([owner, item] {
        if (owner != nullptr)
            item.choose();
    });
    return line;
}

void addLines (juce::PopupMenu& target, const Item& menu, const Owner& owner, int& nextId)
{
    for (const auto& item : menu.subItems)
        if (item.text.isEmpty())
            target.addSeparator();
        else
            target.addItem (lineOf (item, owner, nextId));
}
} // namespace

juce::PopupMenu popupMenuOf (const Item& menu, juce::Component& owner)
{
    juce::PopupMenu result;
    auto nextId = 1;
    addLines (result, menu, &owner, nextId);
    return result;
}

juce::PopupMenu::Options
menuOptions (const juce::PopupMenu& menu, juce::Component& page, juce::Component* beside, int width)
{
    auto options = juce::PopupMenu::Options().withParentComponent (&page);
    auto isFirst = true;

    for (juce::PopupMenu::MenuItemIterator lines (menu); lines.next(); isFirst = false)
    {
        const auto& line = lines.getItem();

        if (isFirst && line.isSectionHeader)
            options = options.withMinimumWidth (width);

        if (line.isTicked)
            options = options.withItemThatMustBeVisible (line.itemID).withInitiallySelectedItem (line.itemID);
    }

    if (beside == nullptr)
        return options.withMousePosition();

    return options.withTargetComponent (beside).withMinimumWidth (
        std::max (options.getMinimumWidth(), std::min (width, beside->getWidth())));
}
} // namespace Zn::GUI
