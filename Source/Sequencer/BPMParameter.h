#pragma once

#include "Parameters/DefaultGesture.h"

namespace Zn::Sequencer
{
/** The tempo as a widget and a preset see it. Audio thread and host write the same number, which must outlive
    it. Thread: message.
*/
class BPMParameter : public Parameters::DefaultAtomic
{
public:
    explicit BPMParameter (std::atomic<float>& bpmToUse) : bpm (bpmToUse) {}

    float getNormalised() const override;
    void setRawNormalised (float normalised) override { setNormalisedNotifying (normalised); }
    void setInt (int value) override { setDouble (double (value)); }
    void setDouble (double value) override;
    juce::String getName() const override { return "BPM"; }

    /** The whole number. */
    juce::String getTextForNormalised (float normalised) const override;
    juce::String getCurrentText() const override;

    /** Keeps four decimals of what a text says. */
    void setFromText (const juce::String& text) override;
    void setNormalisedNotifying (float normalised) override;
    float getFloat() const override { return bpm.load(); }
    bool isHostVisible() const override { return false; }
    bool hasSteps() const override { return false; }
    int getNumSteps() const override { return 0; }
    float getDefault() const override;

private:
    std::atomic<float>& bpm; // 1 to 999 when set here
};
} // namespace Zn::Sequencer
