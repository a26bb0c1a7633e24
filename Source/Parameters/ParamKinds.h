#pragma once

#include "Parameters/ParamList.h"
#include "Parameters/VolumeParameter.h"

/** The holders that a parameter table is made of. Each joins the list that it is declared in, in the order of
    declaration, and is shown as its identifier unless it is given a display name. A unit is what hosts write behind the
    text, which does not have it: texts are what preset files hold.

    `get()` is for the audio thread: it reads one atomic number, without a lock and without a text.
*/
namespace Zn::Audio
{
/** A switch, shown as "On" and "Off". */
struct BoolParam : ListedParam<juce::AudioParameterBool>
{
    BoolParam (ParamList& list,
               const juce::String& id,
               bool isOnByDefault,
               const juce::String& displayName = {});

    bool get() const noexcept { return (*this)->get(); }
};

struct IntRange
{
    int minimum, maximum; // both included
};

/** A whole number. */
struct IntParam : ListedParam<juce::AudioParameterInt>
{
    IntParam (ParamList& list,
              const juce::String& id,
              IntRange range,
              int defaultValue,
              const juce::String& displayName = {},
              const juce::String& unit = {});

    int get() const noexcept { return (*this)->get(); }
};

struct FloatRange
{
    float minimum, maximum; // both included
};

/** A number without steps, shown with two decimals. */
struct FloatParam : ListedParam<juce::AudioParameterFloat>
{
    FloatParam (ParamList& list,
                const juce::String& id,
                FloatRange range,
                float defaultValue,
                const juce::String& displayName = {},
                const juce::String& unit = {});

    float get() const noexcept { return (*this)->get(); }
};

/** One of a list of texts. A text that is not in the list reads as the first. */
struct ChoiceParam : ListedParam<juce::AudioParameterChoice>
{
    ChoiceParam (ParamList& list,
                 const juce::String& id,
                 const juce::StringArray& choices,
                 int defaultIndex,
                 const juce::String& displayName = {});

    int get() const noexcept { return (*this)->getIndex(); }
};

/** Decibels, from silence at -100 dB; reads as a linear gain. -12 dB stands in the middle of the control. */
struct VolumeParam : ListedParam<VolumeParameter>
{
    VolumeParam (ParamList& list,
                 const juce::String& id,
                 float maxDecibels,
                 float defaultDecibels,
                 const juce::String& displayName = {});

    float get() const noexcept { return (*this)->get(); }
};
} // namespace Zn::Audio
