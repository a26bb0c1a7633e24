#pragma once

#include "Parameters/DefaultGesture.h"
#include "Sequencer/MidiPlayer/Controller.h"

namespace Zn::Sequencer::MidiPlayer
{
/** The file that the player plays, as one of a list: None, those that are part of the program, "Open..." and, while
    one is chosen, a file from elsewhere. Its text is the file's name. Thread: message.
*/
class ChoiceParam : public Parameters::DefaultGesture
{
public:
    explicit ChoiceParam (Controller& controllerToUse) : controller (controllerToUse) {}

    /** What "Open..." asks for. */
    Events::Broadcaster openWanted;

    /** The names in order. */
    juce::StringArray getChoices() const;

    /** The chosen file's place among them. */
    int getInt() const override;

    /** "Open..." only asks, and a file from elsewhere stays as it is. */
    void setInt (int index) override;

    float getNormalised() const override;
    void setRawNormalised (float normalised) override { setNormalisedNotifying (normalised); }
    void setDouble (double value) override;
    juce::String getName() const override { return "MIDI file"; }
    juce::String getTextForNormalised (float normalised) const override;
    juce::String getCurrentText() const override;

    /** Any other text is None. */
    void setFromText (const juce::String& text) override;
    void setNormalisedNotifying (float normalised) override;

    /** One line for each choice. */
    Parameters::MenuItems::Item getMenuChoices() override;

    float getFloat() const override { return static_cast<float> (getInt()); }
    bool isHostVisible() const override { return false; }
    bool hasSteps() const override { return true; }
    int getNumSteps() const override { return getChoices().size() - 1; }
    float getDefault() const override { return 0.0f; }

    /** The next file (+1) or the one before (-1), round the ends; None and "Open..." are passed over. */
    void step (int direction);

private:
    int indexFrom (float normalised) const;

    Controller& controller;
};
} // namespace Zn::Sequencer::MidiPlayer
