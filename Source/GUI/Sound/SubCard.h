#pragma once

#include "GUI/Sound/SoundCard.h"
#include "GUI/Widgets/Knob.h"
#include "GUI/Widgets/Label.h"

namespace Zn::GUI
{
/** The sine below the oscillators. Thread: message. */
class SubCard : public SoundCard
{
public:
    explicit SubCard (EditorContext& contextToUse);

private:
    Label title;
    Knob octave, volume;
};
} // namespace Zn::GUI
