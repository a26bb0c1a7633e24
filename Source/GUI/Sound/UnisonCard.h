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

    /** Gives the keyboard to the number of voices, and shows it. */
    void focusVoices() { voices.focus(); }

private:
    struct Voices : Knob
    {
        using Knob::Knob;
        void focus();
    };

    Label title;
    Voices voices;
    Knob amount;
};
} // namespace Zn::GUI
