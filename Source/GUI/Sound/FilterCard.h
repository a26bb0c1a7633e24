#pragma once

#include "GUI/Sound/FilterCurve.h"
#include "GUI/Sound/SoundCard.h"
#include "GUI/Widgets/Knob.h"
#include "GUI/Widgets/Toggle.h"

namespace Zn::GUI
{
/** The filter of each voice. Thread: message. */
class FilterCard : public SoundCard
{
public:
    explicit FilterCard (EditorContext& contextToUse);

    void schemeChanged() override;

private:
    Toggle enable;
    FilterCurve curve;
    Knob cutoff, resonance, keyTracking;
};
} // namespace Zn::GUI
