#pragma once

#include "Foundation/CallbackFunc.h"

#include <juce_audio_processors/juce_audio_processors.h>

#include <functional>
#include <memory>
#include <vector>

namespace Zn::Parameters
{
namespace MenuItems
{
/** One line of a menu, or a menu: what it shows, when it is ticked, what choosing it does. Thread: message. */
struct Item
{
    juce::String text {};
    std::function<bool()> isSelected {}; // may be empty: never ticked
    CallbackFunc action {};              // may be empty
    CallbackFunc afterwards {};          // called after the action; see setRecursiveFunc
    std::vector<Item> subItems {};

    bool isTicked() const { return isSelected != nullptr && isSelected(); }

    /** Does what the line stands for, which may destroy the menu. */
    void choose() const;
};

/** Has a callback called after the action of every line of a whole menu tree, for example to close an undo
    step. Replaces what was set before.
*/
void setRecursiveFunc (Item& menu, CallbackFunc callback);

/** Adds a callback to the action of every line of a whole menu tree that has one. */
void addToActions (Item& menu, const CallbackFunc& callback);

/** Lets a whole menu tree outlive what its lines refer to: once the owner is gone they are unticked and do nothing,
    and while a line acts it keeps the owner.
*/
void holdWeakly (Item& menu, const std::weak_ptr<const void>& owner);
} // namespace MenuItems

/** Every value of a parameter, the highest first, as it stands on a dial.

    Choosing one is a whole gesture; it goes to `hostSide`, the parameter that the host knows the target by, or to
    the target when it is known to the host itself. The menu must not outlive the parameters.
*/
MenuItems::Item getMenuChoicesFor (juce::AudioParameterInt& target,
                                   juce::AudioProcessorParameter* hostSide = nullptr);

/** One line of the menu of a choice. */
MenuItems::Item createMenuChoiceFor (juce::AudioParameterChoice& target,
                                     int index,
                                     const juce::String& text,
                                     juce::AudioProcessorParameter* hostSide = nullptr);
} // namespace Zn::Parameters
