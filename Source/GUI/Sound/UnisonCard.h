#pragma once

#include "GUI/Sound/SoundCard.h"
#include "GUI/Widgets/Knob.h"
#include "GUI/Widgets/Label.h"

namespace Zn::GUI
{
/** The voices of each oscillator: one setting for all four. Thread: message. */
class UnisonCard : public SoundCard
{
public:
    explicit UnisonCard (EditorContext& contextToUse);

    void schemeChanged() override;

    juce::Component& getVoices() noexcept { return voices; }

private:
    Label title;
    Knob voices, amount;
};
} // namespace Zn::GUI
