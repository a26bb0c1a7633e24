#include "GUI/Standalone/KeyboardStrip.h"

#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Widgets/ValueText.h"

#include <cmath>
#include <utility>

namespace Zn::GUI
{
namespace
{
constexpr int semitonesPerOctave = 12;
constexpr int lowestKey = 24, highestKey = 108; // of the piano: seven octaves
constexpr float pianoWhiteKeys = 50.0f;         // on it

juce::Colour colourOf (const char* name)
{
    return AssetScheme::Base::get().colourOf (name);
}

TooltipText octaveText (const char* title, const juce::String& where, const char* key)
{
    return { .title = title,
             .value = {},
             .help = "The computer's keys play an octave " + where + ".",
             .shortcut = key };
}
} // namespace

void KeyboardStrip::Piano::drawWhiteNote (int note,
                                          juce::Graphics& g,
                                          juce::Rectangle<float> area,
                                          bool isDown,
                                          bool isOver,
                                          juce::Colour,
                                          juce::Colour textColour)
{
    // Whole pixels, so that each gap is as dark as the next.
    const auto left = std::round (area.getX());
    const auto key = area.withLeft (left).withRight (std::round (area.getRight()) - 1.0f);
    paintKey (g, key, colourOf ("TextSecondary"), isDown, isOver);

    if (const auto name = getWhiteNoteText (note); name.isNotEmpty())
    {
        g.setColour (textColour);
        g.setFont (font);
        g.drawText (name, area.withTrimmedBottom (3.0f), juce::Justification::centredBottom, false);
    }
}

void KeyboardStrip::Piano::drawBlackNote (
    int, juce::Graphics& g, juce::Rectangle<float> area, bool isDown, bool isOver, juce::Colour colour)
{
    paintKey (g, area, colour, isDown, isOver);
}

void KeyboardStrip::Piano::paintKey (
    juce::Graphics& g, juce::Rectangle<float> key, juce::Colour colour, bool isDown, bool isOver)
{
    constexpr auto corner = 3.0f;
    juce::Path shape;
    shape.addRoundedRectangle (key.getX(),
                               key.getY(),
                               key.getWidth(),
                               key.getHeight(),
                               corner,
                               corner,
                               false,
                               false,
                               true,
                               true);

    g.setColour (isDown ? findColour (keyDownOverlayColourId) : colour);
    g.fillPath (shape);

    if (isOver && ! isDown)
    {
        g.setColour (findColour (mouseOverKeyOverlayColourId));
        g.fillPath (shape);
    }
}

juce::Timer& KeyboardStrip::Piano::getTimer() noexcept
{
    using Base = juce::Timer&;
    return Base (*this); // which a static_cast does not reach, as it is private
}

KeyboardStrip::Button::Button (const EditorContext& context,
                               const juce::String& name,
                               TooltipText explanation)
    : TextButton (name), tooltip (std::move (explanation)), ring (*this, context)
{
    setTitle (tooltip.title);
    setDescription (tooltip.help);
}

void KeyboardStrip::Button::focusGained (FocusChangeType cause)
{
    TextButton::focusGained (cause);
    ring.focusGained (cause);
}

void KeyboardStrip::Button::focusLost (FocusChangeType cause)
{
    TextButton::focusLost (cause);
    ring.focusLost();
}

bool KeyboardStrip::Button::keyPressed (const juce::KeyPress& key)
{
    ring.keyPressed();
    return TextButton::keyPressed (key);
}

void KeyboardStrip::Button::mouseDown (const juce::MouseEvent& event)
{
    ring.mousePressed();
    TextButton::mouseDown (event);
}

KeyboardStrip::KeyboardStrip (EditorContext& contextToUse, juce::Component& window, CallbackFunc showDevices)
    : context (contextToUse)
    , typedKeys (window, keys)
    , devices (context,
               "Audio and MIDI",
               { .title = "Audio and MIDI",
                 .value = {},
                 .help = "Choose what Vornel is heard through, and which MIDI devices play it.",
                 .shortcut = {} })
    , typing (context,
              "Type to play",
              { .title = "Type to play",
                .value = {},
                .help = "The row from A plays notes, Z and X move it by an octave.",
                .shortcut = {} })
    , down (context, juce::String::charToString (0x2212), octaveText ("Octave down", "lower", "Z"))
    , up (context, "+", octaveText ("Octave up", "higher", "X"))
    , schemeListener (context.canvas, [this] { schemeChanged(); })
    , settingsListener (context.settings, [this] { showOctaves(); })
    , pollListener (context.polls, [this] { piano.getTimer().timerCallback(); })
{
    setComponentID ("KeyboardStrip");
    setTitle ("Keyboard");
    setFocusContainerType (FocusContainerType::focusContainer);

    devices.onClick = std::move (showDevices);

    typing.setClickingTogglesState (true);
    typing.setToggleState (true, juce::dontSendNotification);
    typing.onClick = [this] { typedKeys.setActive (typing.getToggleState()); };

    down.onClick = [this] { typedKeys.setLowestNote (typedKeys.getLowestNote() - semitonesPerOctave); };
    up.onClick = [this] { typedKeys.setLowestNote (typedKeys.getLowestNote() + semitonesPerOctave); };
    typedKeys.octaveChanged = [this] { showOctaves(); };

    octave.setJustificationType (juce::Justification::centred);
    octave.setBorderSize ({});
    piano.setAvailableRange (lowestKey, highestKey);
    piano.setScrollButtonsVisible (false);
    piano.clearKeyMappings(); // the typed keys are ours
    piano.setWantsKeyboardFocus (false);
    piano.getTimer().stopTimer(); // it looks with all others

    for (auto* child :
         std::initializer_list<juce::Component*> { &devices, &typing, &down, &octave, &up, &piano })
        addAndMakeVisible (child);

    keys.addListener (this);
    schemeChanged();
    showOctaves();
}

KeyboardStrip::~KeyboardStrip()
{
    keys.removeListener (this);

    for (auto note = 0; note < 128; ++note) // whoever closes the window while a key is down
        if (keys.isNoteOn (1, note))
            context.state().inbox.push (juce::MidiMessage::noteOff (1, note));
}

void KeyboardStrip::paint (juce::Graphics& g)
{
    g.fillAll (colourOf ("Band"));
}

void KeyboardStrip::resized()
{
    constexpr auto gapParts = 16; // of the strip's height
    const auto gap = getHeight() / gapParts;
    auto area = getLocalBounds().reduced (2 * gap, 2 * gap);
    auto controls = area.removeFromLeft (juce::roundToInt (2.4 * getHeight()));
    area.removeFromLeft (2 * gap);
    piano.setBounds (area);
    piano.setKeyWidth (static_cast<float> (area.getWidth()) / pianoWhiteKeys);

    devices.setBounds (controls.removeFromTop ((controls.getHeight() - gap) / 2));
    controls.removeFromTop (gap);
    typing.setBounds (controls.removeFromLeft (controls.getWidth() / 2));
    controls.removeFromLeft (gap);
    down.setBounds (controls.removeFromLeft (controls.getHeight()));
    up.setBounds (controls.removeFromRight (controls.getHeight()));
    octave.setBounds (controls);
}

void KeyboardStrip::handleNoteOn (juce::MidiKeyboardState*, int channel, int note, float velocity)
{
    context.state().inbox.push (juce::MidiMessage::noteOn (channel, note, velocity));
}

void KeyboardStrip::handleNoteOff (juce::MidiKeyboardState*, int channel, int note, float velocity)
{
    if (! context.state().inbox.push (juce::MidiMessage::noteOff (channel, note, velocity)))
        context.state().panic(); // nothing has been heard for long; nothing must hang when it is again
}

void KeyboardStrip::schemeChanged()
{
    octave.setFont (context.canvas.fontOf ("FontBody"));
    piano.font = context.canvas.fontOf ("FontSmall");
    takeColours();
    repaint();
}

void KeyboardStrip::takeColours()
{
    piano.setColour (Piano::whiteNoteColourId, colourOf ("Window")); // what is between its keys
    piano.setColour (Piano::blackNoteColourId, colourOf ("Roll"));
    piano.setColour (Piano::keySeparatorLineColourId, colourOf ("Window"));
    piano.setColour (Piano::mouseOverKeyOverlayColourId, colourOf ("MidiWash"));
    piano.setColour (Piano::keyDownOverlayColourId, colourOf ("Midi"));
    piano.setColour (Piano::textLabelColourId, colourOf ("Window"));
    piano.setColour (Piano::shadowColourId, juce::Colours::transparentBlack);

    for (auto* button : { &devices, &typing, &down, &up })
    {
        button->setColour (juce::TextButton::buttonColourId, colourOf ("Control"));
        button->setColour (juce::TextButton::buttonOnColourId, colourOf ("MidiDeep"));
        button->setColour (juce::TextButton::textColourOffId, colourOf ("Text"));
        button->setColour (juce::TextButton::textColourOnId, colourOf ("Text"));
        button->setColour (juce::ComboBox::outlineColourId, juce::Colours::transparentBlack);
    }

    octave.setColour (juce::Label::textColourId, colourOf ("Text"));
}

void KeyboardStrip::showOctaves()
{
    const auto middleC = context.settings.get().middleC;
    octave.setText (pitchName (typedKeys.getLowestNote(), middleC), juce::dontSendNotification);
    piano.setOctaveForMiddleC (middleC);
}
} // namespace Zn::GUI
