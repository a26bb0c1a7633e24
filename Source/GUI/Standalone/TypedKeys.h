#pragma once

#include <juce_audio_basics/juce_audio_basics.h>
#include <juce_gui_basics/juce_gui_basics.h>

#include <functional>
#include <map>
#include <optional>

namespace Zn::GUI
{
/** Plays notes with the computer's keys: the row from A is the white keys from C on, the row above it the black ones;
    Z and X move it by octaves.

    It follows the focus inside a window and is asked before whatever has it, as the letters would be commands there;
    text fields keep theirs. Thread: message.
*/
class TypedKeys : private juce::KeyListener, private juce::FocusChangeListener
{
public:
    using IsDown = std::function<bool (int keyCode)>;

    /** Both outlive it. */
    TypedKeys (
        juce::Component& windowToFollow,
        juce::MidiKeyboardState& keysToPlay,
        IsDown isDownToAsk = [] (int code) { return juce::KeyPress::isKeyCurrentlyDown (code); });
    ~TypedKeys() override;

    /** Off: what sounds ends, and the letters are commands again. */
    void setActive (bool shouldBeActive);
    bool isActive() const noexcept { return active; }

    /** The note of A, 0 to 108. */
    int getLowestNote() const noexcept { return lowestNote; }
    void setLowestNote (int note);

    /** Whether the key is one of these; plays it if so. */
    bool press (const juce::KeyPress& key);

    /** Ends the notes of keys that are up again. */
    void releaseKeys();

    std::function<void()> octaveChanged = [] {};

private:
    bool keyPressed (const juce::KeyPress& key, juce::Component* focused) override;
    bool keyStateChanged (bool isKeyDown, juce::Component* focused) override;
    void globalFocusChanged (juce::Component* focused) override;
    void listenTo (juce::Component* component);
    void releaseAll();

    juce::Component& window;
    juce::MidiKeyboardState& keys;
    const IsDown isDown;
    juce::Component::SafePointer<juce::Component> listenedTo;
    std::map<int, int> notesByKeyCode; // that sound
    int lowestNote = 48;               // one octave below middle C
    bool active = true;
};
} // namespace Zn::GUI
