#pragma once

#include "Foundation/CallbackFunc.h"

#include <juce_audio_processors/juce_audio_processors.h>

#include <functional>
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

    /** Does what the line stands for. */
    void choose() const;
};

/** Has a callback called after the action of every line of a whole menu tree, for example to close an undo
    step. Replaces what was set before.
*/
void setRecursiveFunc (Item& menu, CallbackFunc callback);
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
