#pragma once

#include "GUI/Sound/DelayTaps.h"
#include "GUI/Sound/SoundCard.h"
#include "GUI/Widgets/Choice.h"
#include "GUI/Widgets/Knob.h"
#include "GUI/Widgets/Label.h"
#include "GUI/Widgets/NumberField.h"
#include "GUI/Widgets/Segments.h"

namespace Zn::GUI
{
/** The echo. Its time is a note length or free: the field of the one gives way to that of the other. Thread: message. */
class DelayCard : public SoundCard
{
public:
    explicit DelayCard (EditorContext& contextToUse);

    void schemeChanged() override;

private:
    void poll() override;

    Label title;
    DelayTaps taps;
    Segments mode;
    NumberField time;
    Choice timeSync;
    Knob feedback, mix, analog;
};
} // namespace Zn::GUI
