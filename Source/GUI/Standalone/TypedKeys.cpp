#include "GUI/Standalone/TypedKeys.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace Zn::GUI
{
namespace
{
constexpr std::string_view letters = "awsedftgyhujkolp;"; // from C, a semitone each
constexpr int semitonesPerOctave = 12;
constexpr int highestStart = 108; // the last C from which an octave fits the keyboard
constexpr int midiChannel = 1;
constexpr float velocity = 0.8f;

std::optional<int> semitoneOf (const juce::KeyPress& key)
{
    const auto letter = juce::CharacterFunctions::toLowerCase (key.getTextCharacter());

    if (letter <= 0 || letter > 127)
        return {};

    const auto place = letters.find (static_cast<char> (letter));
    return place == std::string_view::npos ? std::nullopt : std::optional (static_cast<int> (place));
}

bool isCommand (const juce::ModifierKeys& modifiers)
{
    return modifiers.isCtrlDown() || modifiers.isAltDown() || modifiers.isCommandDown();
}
} // namespace

TypedKeys::TypedKeys (juce::Component& windowToFollow,
                      juce::MidiKeyboardState& keysToPlay,
                      IsDown isDownToAsk)
    : window (windowToFollow), keys (keysToPlay), isDown (std::move (isDownToAsk))
{
    juce::Desktop::getInstance().addFocusChangeListener (this);
    globalFocusChanged (juce::Component::getCurrentlyFocusedComponent());
}

TypedKeys::~TypedKeys()
{
    juce::Desktop::getInstance().removeFocusChangeListener (this);
    listenTo (nullptr);
    releaseAll();
}

void TypedKeys::setActive (bool shouldBeActive)
{
    active = shouldBeActive;

    if (! active)
        releaseAll();
}

void TypedKeys::setLowestNote (int note)
{
    lowestNote = std::clamp (note, 0, highestStart);
    octaveChanged();
}

bool TypedKeys::press (const juce::KeyPress& key)
{
    if (! active || isCommand (key.getModifiers()))
        return false;

    const auto letter = juce::CharacterFunctions::toLowerCase (key.getTextCharacter());

    if (letter == 'z' || letter == 'x')
    {
        setLowestNote (lowestNote + (letter == 'x' ? semitonesPerOctave : -semitonesPerOctave));
        return true;
    }

    const auto semitone = semitoneOf (key);

    if (! semitone)
        return false;

    const auto note = lowestNote + *semitone;

    // A key that is held repeats itself.
    if (note <= 127 && notesByKeyCode.try_emplace (key.getKeyCode(), note).second)
        keys.noteOn (midiChannel, note, velocity);

    return true;
}

void TypedKeys::releaseKeys()
{
    for (auto held = notesByKeyCode.begin(); held != notesByKeyCode.end();)
    {
        if (isDown (held->first))
        {
            ++held;
            continue;
        }

        keys.noteOff (midiChannel, held->second, 0.0f);
        held = notesByKeyCode.erase (held);
    }
}

void TypedKeys::releaseAll()
{
    for (const auto& [code, note] : std::exchange (notesByKeyCode, {}))
        keys.noteOff (midiChannel, note, 0.0f);
}

bool TypedKeys::keyPressed (const juce::KeyPress& key, juce::Component* focused)
{
    return dynamic_cast<juce::TextInputTarget*> (focused) == nullptr && press (key);
}

bool TypedKeys::keyStateChanged (bool, juce::Component*)
{
    releaseKeys();
    return false;
}

void TypedKeys::globalFocusChanged (juce::Component* focused)
{
    const auto isInWindow = focused != nullptr && (focused == &window || window.isParentOf (focused));
    listenTo (isInWindow ? focused : nullptr);

    if (! isInWindow) // nobody tells of keys that come up now
        releaseAll();
}

void TypedKeys::listenTo (juce::Component* component)
{
    if (listenedTo != nullptr)
        listenedTo->removeKeyListener (this);

    listenedTo = component;

    if (component != nullptr)
        component->addKeyListener (this);
}
} // namespace Zn::GUI
