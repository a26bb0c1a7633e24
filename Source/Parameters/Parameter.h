#pragma once

#include "Parameters/MenuItems.h"
#include "Presets/Reflection/Reflector.h"

#include <juce_core/juce_core.h>

namespace Zn::Parameters
{
/** What a widget, a MIDI controller and a preset read and set any value through, be it a plain number of the
    model or a parameter that the host automates.

    A normalised value is a proportion, 0..1, of the value's range. Thread: message.
*/
class Parameter
{
public:
    virtual ~Parameter() = default;

    virtual float getNormalised() const = 0;

    /** Sets the value without telling the host. */
    virtual void setRawNormalised (float normalised) = 0;

    virtual void setInt (int value) = 0;
    virtual void setBool (bool value);

    /** Sets a value in its own unit, limited to the range. */
    virtual void setDouble (double value) = 0;

    /** Reads or writes the current text under the key "value". */
    virtual void reflect (Reflector& r);

    virtual juce::String getName() const = 0;
    virtual juce::String getTextForNormalised (float normalised) const = 0;

    /** The text of the current value, as presets store it. */
    virtual juce::String getCurrentText() const = 0;

    /** Empty when there are no steps, else the text for the proportion index / getNumSteps(). */
    virtual juce::String getTextForStep (int index) const;

    virtual void setFromText (const juce::String& text) = 0;
    virtual void setNormalisedNotifying (float normalised) = 0;

    /** A menu with one line for each step; it must not outlive the parameter. */
    virtual MenuItems::Item getMenuChoices();

    /** The value in its own unit. */
    virtual float getFloat() const = 0;

    /** Whether the value is another than the one that was read as these two: for whoever looks again and again, who is
        to convert it after a change only.
    */
    virtual bool differsFrom (float normalised, float plain) const
    {
        return getNormalised() != normalised || getFloat() != plain;
    }

    virtual int getInt() const;   // getFloat without its fraction
    virtual bool getBool() const; // strictly above the middle of the range

    virtual bool isHostVisible() const = 0;
    virtual bool hasSteps() const = 0;

    /** The number of values less one, so that step 0 is the lowest and step getNumSteps() the highest value. */
    virtual int getNumSteps() const = 0;

    virtual float getDefault() const = 0; // normalised

    /** A gesture spans what a user does in one go, so that the host records it as one. */
    virtual bool isGestureActive() const = 0;
    virtual void beginGesture() = 0;
    virtual void endGesture() = 0;

protected:
    /** A menu line that sets a whole number as one gesture. */
    MenuItems::Item createMenuChoice (const juce::String& text, int value);
};
} // namespace Zn::Parameters
