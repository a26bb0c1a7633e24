#include "GUI/Widgets/ControlTexts.h"

#include <algorithm>

namespace Zn::GUI
{
namespace
{
using enum ValueStyle;

struct Row
{
    std::string_view element; // a "#" stands for the number of an oscillator or a slot, in all texts
    const char* title;
    const char* help;
    const char* shortcut = "";
    const char* label = "";
    const char* shortLabel = "";
    ValueStyle style = ownText;
};

constexpr Row rows[] = {
    { "Logo", "Vornel", "About Vornel, version and licences." },
    { "PresetPrevious", "Previous preset", "Load the preset before this one.", "Ctrl+PgUp" },
    { "PresetNext", "Next preset", "Load the preset after this one.", "Ctrl+PgDn" },
    { "PresetName", "Preset", "Choose a preset. Type to search.", "Ctrl+F" },
    { "PresetSave", "Save preset", "Save this preset.", "Ctrl+S", "Save" },
    { "PresetMenu", "Preset menu", "More for presets." },
    { "Undo", "Undo", "Take back the last change.", "Ctrl+Z" },
    { "Redo", "Redo", "Bring it back.", "Ctrl+Shift+Z" },
    { "MidiLearn", "MIDI learn", "Control Vornel from your keys and pedal.", "Ctrl+L", "Learn" },
    { "Help", "Help", "How to route Vornel in your host.", "F1" },
    { "Settings", "Settings", "Window, colours, motion, panic.", "Ctrl+," },
    { "ArpActive", "Arpeggiator", "Off: your keys pass straight through.", "", "Arp" },
    { "Slot#", "Pattern #", "Play this pattern. Alt-click: edit only. Drag: copy.", "Ctrl+#" },
    { "Quantize", "Quantize", "Patterns switch at the next of these.", "", "Quantize" },
    { "Retrigger", "Retrigger", "Each new key starts the pattern again.", "", "Retrigger" },
    { "Play", "Play", "Start or stop the internal clock." },
    { "Bpm", "Tempo", "Tempo of the internal clock.", "", "BPM", "", tempo },
    { "Clock", "Clock", "Follow the host, or run on your own.", "", "Clock" },
    { "KeyMode", "Key mode", "Transpose: shift the chord. Key: follow every key change." },
    { "Transpose", "Transpose", "Shift the chord by semitones.", "", "", "", semitones },
    { "Key", "Key", "Move the chord from C to this key." },
    { "Octave", "Octave", "Shift the chord by octaves.", "", "Octave", "Oct", signedNumber },
    { "Swing",
      "Swing",
      "Push (+) or pull (\xe2\x88\x92) the middle of each swing step.",
      "",
      "Swing",
      "",
      signedPercent },
    { "SwingRef", "Swing step", "The length that swings." },
    { "OctaveRange", "Octave range", "Notes outside are folded back in by octaves.", "", "Range" },
    { "OctaveRangeLow", "Lowest octave", "Notes outside are folded back in by octaves." },
    { "OctaveRangeHigh", "Highest octave", "Notes outside are folded back in by octaves." },
    { "BrushBank", "Tool", "What the pointer does in the roll." },
    { "BrushPencil", "Draw", "Draw notes. Click a note to erase it.", "D", "Draw" },
    { "BrushCursor", "Select", "Select, move and resize notes.", "S", "Select" },
    { "BrushVelocity", "Velocity", "Paint how hard notes play.", "V", "Velocity" },
    { "BrushChance", "Chance", "Paint how often notes play.", "C", "Chance" },
    { "ClearAll", "Clear pattern", "Erase every note of this pattern.", "", "Clear" },
    { "Snap", "Snap", "Keep notes on the grid. Alt: the opposite.", "G", "Snap" },
    { "Grid", "Grid", "Columns in the pattern.", "", "Grid" },
    { "NoteLength",
      "Note length",
      "Length of new notes, as part of a column.",
      "",
      "Length",
      "",
      wholePercent },
    { "TimeNum", "Time numerator", "Length of the pattern, or of one column with \xc3\x97.", "", "Time" },
    { "TimeDenum", "Time denominator", "Length of the pattern, or of one column with \xc3\x97." },
    { "Multiply", "Multiply time", "Time is one column's length instead of the pattern's." },
    { "DragMidi", "Drag MIDI", "Drag into the host: this pattern as a MIDI file.", "", "MIDI" },
    { "HeldChord", "Held chord", "The keys that feed the pattern." },
    { "ZoomFit", "Fit pattern", "Show the whole pattern.", "Ctrl+0" },
    { "LaneVelocity", "Velocity lane", "Edit velocity below.", "", "Vel" },
    { "LaneChance", "Chance lane", "Edit chance below.", "", "Chance" },
    { "PitchMap", "Rows", "What each row plays with the keys you hold." },
    { "PlayingElsewhere", "Playing slot", "Click to open the slot that plays." },
    { "SynthEnable", "Synth", "Off: Vornel only sends MIDI.", "", "Synth" },
    { "SoundPrevious", "Previous sound", "Load the sound before this one." },
    { "SoundNext", "Next sound", "Load the sound after this one." },
    { "SoundName", "Sound", "Choose a sound. Type to search." },
    { "SoundSave", "Save sound", "Save this sound.", "", "Save" },
    { "SoundMenu", "Sound menu", "More for sounds." },
    { "SoundFold", "Fold sound", "Fold the sound away for a taller roll.", "Ctrl+M" },
    { "Osc#Enable", "Oscillator #", "Oscillator on or off.", "", "Osc #" },
    { "Osc#Unison", "Oscillator # unison", "Unison voices of all oscillators." },
    { "Osc#Wave", "Oscillator # wave", "Drag up or down: previous or next wavetable." },
    { "Osc#Type", "Oscillator # wavetable", "Choose the wavetable." },
    { "Osc#Octave", "Oscillator # octave", "Shift by octaves.", "", "Octave", "Oct", signedNumber },
    { "Osc#Tune", "Oscillator # tune", "Shift by semitones.", "", "Tune", "Tune", signedNumber },
    { "Osc#Volume", "Oscillator # volume", "Level in decibels.", "", "Volume", "Vol", decibels },
    { "SubOctave", "Sub octave", "Shift the sine by octaves.", "", "Octave", "Oct", signedNumber },
    { "SubVolume", "Sub volume", "Level in decibels.", "", "Volume", "Vol", decibels },
    { "Unison", "Unison voices", "Voices per oscillator.", "", "Voices" },
    { "UnisonAmount", "Unison amount", "How far the voices spread.", "", "Amount", "Amt", percent },
    { "FilterEnable", "Filter", "Filter on or off.", "", "Filter" },
    { "FilterCurve", "Filter curve", "Drag: cutoff across, resonance up." },
    { "FilterCutoff", "Filter cutoff", "Brightness.", "", "Cutoff", "", hertz },
    { "FilterResonance", "Filter resonance", "Peak at the cutoff.", "", "Reso", "", decimals },
    { "FilterKeyTracking",
      "Filter key tracking",
      "How far the cutoff follows the note.",
      "",
      "Key",
      "",
      percent },
    { "EnvelopeCurve", "Envelope curve", "Drag a point to shape the note." },
    { "EnvelopeAttack", "Envelope attack", "Time to full level.", "", "Attack", "Atk", seconds },
    { "EnvelopeDecay", "Envelope decay", "Time to the sustain level.", "", "Decay", "Dec", seconds },
    { "EnvelopeSustain", "Envelope sustain", "Level while held.", "", "Sustain", "Sus", percent },
    { "EnvelopeRelease", "Envelope release", "Time to silence.", "", "Release", "Rel", seconds },
    { "DelayCurve", "Echoes", "Drag: time across, feedback up." },
    { "DelayMode", "Delay mode", "Note lengths or free time." },
    { "DelayTime", "Delay time", "Time between echoes.", "", "", "", seconds },
    { "DelayTimeSync", "Delay time", "Time between echoes." },
    { "DelayFeedback", "Delay feedback", "How much each echo leaves.", "", "Feedback", "Fdbk", percent },
    { "DelayMix", "Delay mix", "Echo against dry.", "", "Mix", "", percent },
    { "DelayAnalog", "Delay analog", "Darker echoes.", "", "Analog", "", percent },
    { "Master", "Master volume", "Output level.", "", "Master", "", decibels },
    { "MasterFolded", "Master volume", "Output level.", "", "Master", "", decibels },
    { "MasterValue", "Master volume", "Output level.", "", "", "", decibels },
    { "MasterFoldedValue", "Master volume", "Output level.", "", "", "", decibels },
    { "Meter", "Output meter", "Left level; click clears red." },
    { "PlayerActive", "MIDI player", "Play a MIDI file instead of your keys.", "", "MIDI player" },
    { "PlayerSync", "MIDI player sync", "Off: the file rests, and your keys play.", "", "Sync" },
    { "PlayerPrevious", "Previous MIDI file", "Play the chords before these." },
    { "PlayerNext", "Next MIDI file", "Play the chords after these." },
    { "PlayerFile", "MIDI file", "Choose chords, or open a MIDI file." },
    { "PlayerOpen", "Open MIDI file", "Open a MIDI file of your own.", "", "Open" },
    { "PlayerTimeline", "Chords of the MIDI file", "Click: jump there." },
    { "SettingsMiddleC", "Middle C", "The octave that middle C is counted in.", "", "Middle C is" },
    { "SettingsWindowSize", "Window size", "The corner of the window does the same.", "", "Window size" },
    { "SettingsColours", "Colours", "Your own are a file that you edit.", "", "Colours" },
    { "SettingsTooltips", "Tooltips", "Such as this one.", "", "Tooltips" },
    { "SettingsReducedMotion", "Reduced motion", "No trail, fades and pulses.", "", "Reduced motion" },
    { "SettingsPlayHead", "Play head", "How often it moves.", "", "Play head" },
    { "SettingsFollow",
      "Follow the playing slot",
      "Open the slot that begins to play.",
      "",
      "Follow the playing slot" },
    { "SettingsWheel",
      "Wheel turns knobs",
      "Off: the wheel leaves all values alone.",
      "",
      "Wheel turns knobs" },
    { "SettingsFolders", "Folders", "Where your files lie.", "", "Folders" },
    { "SettingsPanic", "Panic", "Let go of every key, and end what they play.", "", "Stop every note" },
    { "PresetLoadDefault", "Load Default", "What Vornel opens with." },
    { "PresetLoadInit", "Load Init", "Everything as before any preset: a clean start." },
    { "PresetShowFolder", "Show folder", "Where your own lie." },
    { "PresetSaveAs", "Save as", "Under a name of your choice.", "Ctrl+Shift+S" },
    { "SaveCategory", "Category", "A folder. Type a new one, if you like." },
    { "SaveWithSound", "Keep the sound", "Off: loading it leaves sound and arp settings alone." },
    { "SaveCancel", "Cancel", "Saves nothing.", "Esc" },
    { "SaveConfirm", "Save", "Writes the file.", "Enter" },
    { "LearnBarDone", "Done", "Leaves MIDI learn.", "Esc" },
    { "LearnPanelClear", "Forget all", "No key and no pedal is learned any more." },
    { "RoutingButton", "Do it for me", "Spares you this step." },
    { "AboutLicences", "Licences", "Of Vornel and of what it is made with.", "", "Licences" },
    { "AboutNews", "What is new", "What has changed in each version.", "", "What is new" },
    { "AboutCopy", "Copy details", "Version and system, for a report.", "", "Copy details" },
    { "AboutClose", "Close", "", "Esc", "Close" },
    { "TextPopupClose", "Close", "", "Esc", "Close" },
    { "RoutingClose", "Close", "", "Esc" },
    { "UpdateNoticeNews", "What is new", "What has changed in each version.", "", "What is new" },
    { "UpdateNoticeClose", "Close", "", "Esc", "Close" },
    { "Resizer", "Window size", "Drag to resize. Double-click: 100 %." },
};

/** "Osc1Volume" is like "Osc#Volume" with 1 for the sign. */
bool matches (std::string_view pattern, std::string_view element)
{
    return std::equal (pattern.begin(), pattern.end(), element.begin(), element.end(), [] (char p, char e) {
        return p == e || (p == '#' && e >= '1' && e <= '8');
    });
}
} // namespace

ControlText controlText (std::string_view element)
{
    const auto* row = std::find_if (std::begin (rows), std::end (rows), [element] (const Row& candidate) {
        return matches (candidate.element, element);
    });

    if (row == std::end (rows))
        return { .title = juce::String (element.data(), element.size()) };

    const auto sign = row->element.find ('#');
    const auto number = sign == std::string_view::npos
                            ? juce::String()
                            : juce::String::charToString (juce::juce_wchar (element[sign]));

    const auto filled = [&] (const char* text) {
        return juce::String::fromUTF8 (text).replace ("#", number);
    };

    return { .title = filled (row->title),
             .help = filled (row->help),
             .shortcut = filled (row->shortcut),
             .label = filled (row->label),
             .shortLabel = filled (*row->shortLabel != 0 ? row->shortLabel : row->label),
             .style = row->style };
}
} // namespace Zn::GUI
