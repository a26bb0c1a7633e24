#pragma once

#include "Foundation/CallbackFunc.h"
#include "Parameters/IntLike.h"
#include "Sequencer/MusicalTime.h"

namespace Zn::Sequencer::Modifiers
{
/** One number of one bar, for the editor to change.

    Binding it writes nothing: a file may hold numbers that the control does not offer, and only a user's action
    replaces them. A bar that is gone shows the default and takes no value. Thread: message.
*/
class MusicalTimeParam : public Parameters::IntLike
{
public:
    /** `changedToUse` is called after each change, to lay out and publish the pattern anew. */
    MusicalTimeParam (juce::String nameToUse,
                      int Bar::*fieldToUse,
                      MusicalTime& timeToUse,
                      CallbackFunc changedToUse,
                      int barIndexToUse);

    int getIntValue() const override;

    /** Stores and tells only a number that differs. */
    void setIntValue (int newValue) override;

    float getDefault() const override { return normalisedFrom (defaultValue); }

private:
    static constexpr int defaultValue = 4; // 4/4

    int Bar::*const field;
    MusicalTime& time;
    const CallbackFunc changed;
    const std::size_t barIndex;
};
} // namespace Zn::Sequencer::Modifiers
