#pragma once

#include "GUI/Sound/CardTitle.h"
#include "GUI/Sound/SoundCard.h"
#include "GUI/Sound/UnisonChip.h"
#include "GUI/Sound/WavePicture.h"
#include "GUI/Widgets/Choice.h"
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
        std::function<void (juce::Point<int> onScreen)> dragged; // by its title
        std::function<void (juce::Point<int> onScreen, bool swaps)> dropped;
    };

    OscillatorCard (EditorContext& contextToUse, int index, Callbacks callbacksToUse); // 0..3

    /** Another card is held over it. */
    void setDropTarget (bool shouldBeDropTarget);

    void schemeChanged() override;
    void paintOverChildren (juce::Graphics& g) override;

private:
    const std::string name; // "Osc1"
    const std::shared_ptr<Parameters::Parameter> table;

    Toggle enable;
    UnisonChip unison;
    WavePicture wave;
    Choice type;
    Knob octave, tune, volume;
    CardTitle title;
    bool isDropTarget = false;
};
} // namespace Zn::GUI
