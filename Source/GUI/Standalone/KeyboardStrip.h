#pragma once

#include "GUI/Standalone/TypedKeys.h"
#include "GUI/Widgets/EditorContext.h"
#include "GUI/Widgets/FocusRing.h"
#include "GUI/Widgets/TooltipSource.h"

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

private:
    void handleNoteOn (juce::MidiKeyboardState*, int channel, int note, float velocity) override;
    void handleNoteOff (juce::MidiKeyboardState*, int channel, int note, float velocity) override;
    void schemeChanged();
    void takeColours();
    void showOctaves();

    struct Button : juce::TextButton, TooltipSource
    {
        Button (const EditorContext& context, const juce::String& text, TooltipText explanation);
        TooltipText getTooltipText() const override { return tooltip; }

        void focusGained (FocusChangeType cause) override;
        void focusLost (FocusChangeType cause) override;
        bool keyPressed (const juce::KeyPress& key) override;
        void mouseDown (const juce::MouseEvent& event) override;

        const TooltipText tooltip;
        FocusRing ring;
    };

    /** Flat, in the editor's colours. */
    struct Piano : juce::MidiKeyboardComponent
    {
        using MidiKeyboardComponent::MidiKeyboardComponent;
        void drawWhiteNote (
            int, juce::Graphics&, juce::Rectangle<float>, bool, bool, juce::Colour, juce::Colour) override;
        void drawBlackNote (int, juce::Graphics&, juce::Rectangle<float>, bool, bool, juce::Colour) override;
        void paintKey (
            juce::Graphics& g, juce::Rectangle<float> key, juce::Colour colour, bool isDown, bool isOver);

        /** By which it looks for keys that have been pressed elsewhere; JUCE keeps it to itself. */
        juce::Timer& getTimer() noexcept;

        juce::Font font; // of the names on its keys
    };

    EditorContext& context;
    juce::MidiKeyboardState keys;
    Piano piano { keys, juce::MidiKeyboardComponent::horizontalKeyboard };
    TypedKeys typedKeys;
    Button devices, typing, down, up;
    juce::Label octave;

    Events::Listener schemeListener, settingsListener, pollListener;
};
} // namespace Zn::GUI
