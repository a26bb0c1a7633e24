#pragma once

#include "Foundation/CallbackFunc.h"
#include "Parameters/AtomicBool.h"

#include <array>

namespace Zn::GUI
{
/** A switch whose two positions have names, as "Host" and "Internal"; tells of each change that is made through it.
    Thread: message.
*/
class NamedSwitch : public Parameters::AtomicBool
{
public:
    using Texts = std::array<const char*, 2>; // off, on

    NamedSwitch (std::atomic<bool>& valueToUse,
                 const juce::String& nameToUse,
                 Texts textsToUse,
                 CallbackFunc changedToUse = {});

    juce::String getTextForNormalised (float normalised) const override;
    void setFromText (const juce::String& text) override;
    void setNormalisedNotifying (float normalised) override;

private:
    const Texts texts;
    const CallbackFunc changed;
};
} // namespace Zn::GUI
