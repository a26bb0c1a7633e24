#pragma once

#include "GUI/Sound/EnvelopeCurve.h"
#include "GUI/Sound/SoundCard.h"
#include "GUI/Widgets/Knob.h"
#include "GUI/Widgets/Label.h"

namespace Zn::GUI
{
/** The level of each note in time. Thread: message. */
class EnvelopeCard : public SoundCard
{
public:
    explicit EnvelopeCard (EditorContext& contextToUse);

    void schemeChanged() override;

private:
    Label title;
    EnvelopeCurve curve;
    Knob attack, decay, sustain, release;
};
} // namespace Zn::GUI
