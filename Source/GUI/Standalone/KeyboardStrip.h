#pragma once

#include "GUI/Standalone/TypedKeys.h"
#include "GUI/Widgets/EditorContext.h"

#include <juce_audio_utils/juce_audio_utils.h>

namespace Zn::GUI
{
/** A piano below the editor for those who have none, with what the program needs around it: the devices it plays
    through, and whether the computer's keys play. What is pressed goes into the next block. Thread: message.
*/
class KeyboardStrip : public juce::Component, private juce::MidiKeyboardState::Listener
{
public:
    /** The window is where typed keys are listened to. */
    KeyboardStrip (EditorContext& contextToUse, juce::Component& window, CallbackFunc showDevices);
    ~KeyboardStrip() override;

    juce::MidiKeyboardState& getKeys() noexcept { return keys; }
    TypedKeys& getTypedKeys() noexcept { return typedKeys; }

    void paint (juce::Graphics& g) override;
    void resized() override;
    void lookAndFeelChanged() override { takeColours(); }

private:
    void handleNoteOn (juce::MidiKeyboardState*, int channel, int note, float velocity) override;
    void handleNoteOff (juce::MidiKeyboardState*, int channel, int note, float velocity) override;
    void takeColours();
    void showOctave();

    /** Flat, in the editor's colours. */
    struct Piano : juce::MidiKeyboardComponent
    {
        using MidiKeyboardComponent::MidiKeyboardComponent;
        void drawWhiteNote (
            int, juce::Graphics&, juce::Rectangle<float>, bool, bool, juce::Colour, juce::Colour) override;
        void drawBlackNote (int, juce::Graphics&, juce::Rectangle<float>, bool, bool, juce::Colour) override;
        void paintKey (
            juce::Graphics& g, juce::Rectangle<float> key, juce::Colour colour, bool isDown, bool isOver);
    };

    EditorContext& context;
    juce::MidiKeyboardState keys;
    Piano piano { keys, juce::MidiKeyboardComponent::horizontalKeyboard };
    TypedKeys typedKeys;
    juce::TextButton devices { "Audio and MIDI" };
    juce::TextButton typing { "Type to play" };
    juce::TextButton down { juce::String::fromUTF8 ("\xe2\x88\x92") }, up { "+" };
    juce::Label octave;
};
} // namespace Zn::GUI
