#include "GUI/Editor/PageKeys.h"

#include "Sequencer/PatternData.h"

#include <array>

namespace Zn::GUI
{
namespace
{
using Key = juce::KeyPress;
using Modifiers = juce::ModifierKeys;

constexpr auto command = Modifiers::commandModifier; // Ctrl, or Cmd where that is the custom
constexpr auto shift = Modifiers::shiftModifier;
constexpr auto alt = Modifiers::altModifier;

struct PageKey
{
    int keyCode, modifiers;
    CallbackFunc PageActions::*action;

    Key key() const { return { keyCode, modifiers, 0 }; }
};

/** Not a constant, since JUCE's key codes are none. */
auto pageKeys()
{
    using Actions = PageActions;

    return std::to_array<PageKey> ({
        { 'z', command, &Actions::undo },
        { 'z', command | shift, &Actions::redo },
        { 'y', command, &Actions::redo },
        { 's', command, &Actions::save },
        { 's', command | shift, &Actions::saveAs },
        { Key::pageUpKey, command, &Actions::previousPreset },
        { Key::pageDownKey, command, &Actions::nextPreset },
        { 'f', command, &Actions::searchPresets },
        { 'l', command, &Actions::learn },
        { ',', command, &Actions::settings },
        { Key::F1Key, 0, &Actions::help },
        { Key::F6Key, 0, &Actions::nextBand },
        { Key::F6Key, shift, &Actions::previousBand },
        { 'm', command, &Actions::fold },
        { Key::spaceKey, 0, &Actions::play },
    });
}

/** Nothing if the key chooses no slot, or nobody can. */
CallbackFunc slotAction (const Key& key, const PageActions& actions)
{
    const auto number = key.getKeyCode() - '1';

    if (number < 0 || number >= Sequencer::numSlots)
        return nullptr;

    const auto modifiers = key.getModifiers().getRawFlags();
    const auto& choose = modifiers == (command | alt) ? actions.openSlot : actions.playSlot;

    if (choose == nullptr || (modifiers != command && modifiers != (command | alt)))
        return nullptr;

    return [&choose, number] { choose (number); };
}

CallbackFunc actionFor (const Key& key, const PageActions& actions)
{
    for (const auto& candidate : pageKeys())
        if (candidate.key() == key)
            return actions.*candidate.action;

    return slotAction (key, actions);
}
} // namespace

bool actOn (const Key& key, const PageActions& actions, bool isDragging)
{
    const auto action = actionFor (key, actions);

    if (action == nullptr)
        return false;

    if (! isDragging || key == Key (Key::spaceKey))
        action();

    return true;
}
} // namespace Zn::GUI
