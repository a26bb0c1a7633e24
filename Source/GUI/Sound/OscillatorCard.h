#pragma once

#include "GUI/Sound/CardTitle.h"
#include "GUI/Sound/SoundCard.h"
#include "GUI/Sound/UnisonChip.h"
#include "GUI/Sound/WavePicture.h"
#include "GUI/Sound/WavetableField.h"
#include "GUI/Widgets/Knob.h"
#include "GUI/Widgets/Toggle.h"

namespace Zn::GUI
{
/** One of the four oscillators. Its title is dragged onto another card to copy it there. Thread: message. */
class OscillatorCard : public SoundCard
{
public:
    /** What other parts do about it. */
    struct Callbacks
    {
        CallbackFunc unisonClicked;
        CardTitle::Dragged dragged; // by its title
        CardTitle::Dropped dropped;
        WavetablePopup::Callbacks table; // of one that is dragged out of the list of all
    };

    OscillatorCard (EditorContext& contextToUse, int index, Callbacks callbacksToUse); // 0..3

    /** Another card, or a table, is held over it. */
    void setDropTarget (bool shouldBeDropTarget);

    /** By its place in the list of all. One step of undo. */
    void setTable (int index);

    void schemeChanged() override;
    void paintOverChildren (juce::Graphics& g) override;

private:
    const std::string name; // "Osc1"
    const std::shared_ptr<Parameters::Parameter> table;

    Toggle enable;
    UnisonChip unison;
    WavePicture wave;
    WavetableField type;
    Knob octave, tune, volume;
    CardTitle title;
    bool isDropTarget = false;
};
} // namespace Zn::GUI
