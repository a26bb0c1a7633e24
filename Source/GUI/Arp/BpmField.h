#pragma once

#include "GUI/Arp/TapTempo.h"
#include "GUI/Widgets/NumberField.h"

namespace Zn::GUI
{
/** The tempo: dragged, turned, typed or tapped; plain text while the host gives it. Thread: message. */
class BpmField : public NumberField
{
public:
    explicit BpmField (EditorContext& contextToUse);

    void mouseDown (const juce::MouseEvent& event) override;
    void mouseDoubleClick (const juce::MouseEvent& event) override;
    void mouseWheelMove (const juce::MouseEvent& event, const juce::MouseWheelDetails& wheel) override;
    bool keyPressed (const juce::KeyPress& key) override;
    TooltipText getTooltipText() const override;

    /** From now on clicks are beats, until there is none for a while. */
    void startTapping();

private:
    void poll() override;
    void showTempoMenu();
    void tap();
    bool isHosts() const;

    std::optional<TapTempo> tapping;
};
} // namespace Zn::GUI
