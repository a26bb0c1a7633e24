#include "ArgumentParser.h"

#include "ArgumentValues.h"
#include "Errors.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace Zn::Render
{
namespace
{
/** One option: how it is written, what it is for, and what it does. */
struct Row
{
    std::string_view name;
    std::string_view value; // as the help calls it; empty: takes none
    std::string_view help;  // lines
    void (*apply) (Options&, const std::string& value);

    bool takesValue() const noexcept { return ! value.empty(); }
};

constexpr std::array rows {
    Row {
        "--out-wav", "FILE", "write the audio as WAV", [] (auto& o, auto& v) { o.wavFile = fileFrom (v); } },
    Row { "--wav-bits",
          "16|24|32",
          "bits of a WAV sample, 32 is float (default 24)",
          [] (auto& o, auto& v) { o.wavBits = wavBitsFrom (v); } },
    Row { "--out-midi",
          "FILE",
          "write the MIDI that the host receives as a MIDI file with the tempo map;\n"
          "a loop is written out",
          [] (auto& o, auto& v) { o.midiFile = fileFrom (v); } },
    Row { "--out-events",
          "FILE",
          "write the same as JSON Lines: {\"sample\": 1234, \"bytes\": [144, 60, 100]}",
          [] (auto& o, auto& v) { o.eventsFile = fileFrom (v); } },
    Row { "--preset",
          "FILE",
          "load a pattern preset; vornel-presets list --paths shows those that there are",
          [] (auto& o, auto& v) { o.presetFile = fileFrom (v); } },
    Row { "--sound", "FILE", "load a sound preset", [] (auto& o, auto& v) { o.soundFile = fileFrom (v); } },
    Row { "--state-in",
          "FILE",
          "begin with a state as a host keeps it in its project",
          [] (auto& o, auto& v) { o.stateFile = fileFrom (v); } },
    Row { "--state-out",
          "FILE",
          "write the state that is played, for a host or --state-in; needs no input",
          [] (auto& o, auto& v) { o.newStateFile = fileFrom (v); } },
    Row { "--set",
          "ID=TEXT",
          "set a host parameter to a display text; may be given often",
          [] (auto& o, auto& v) { o.settings.push_back (settingFrom (v)); } },
    Row { "--learn",
          "MESSAGE=TARGET",
          "let a key of the file switch to a slot, \"note 36 = slot 2\" (slots are counted\n"
          "from 1 to 8 here), or the sustain pedal move a host parameter,\n"
          "\"cc 64 = Filter-Cutoff\"; such messages do not sound; may be given often",
          [] (auto& o, auto& v) { o.learned.push_back (learnedFrom (v)); } },
    Row { "--slot",
          "N",
          "play the pattern of this slot, 0 to 7",
          [] (auto& o, auto& v) { o.slot = slotFrom (v); } },
    Row { "--seed",
          "N",
          "seed of everything left to chance, so that a render can be repeated",
          [] (auto& o, auto& v) { o.seed = seedFrom (v); } },
    Row { "--bpm",
          "B",
          "one tempo, 4 to 999, instead of the file's tempo map",
          [] (auto& o, auto& v) { o.bpm = bpmFrom (v); } },
    Row { "--sample-rate",
          "R",
          "8000 to 384000 (default 48000)",
          [] (auto& o, auto& v) { o.sampleRate = sampleRateFrom (v); } },
    Row { "--block",
          "N",
          "samples in a block, 1 to 65536 (default 512), or random:SEED:MAX for sizes\n"
          "from 1 to MAX that change from block to block",
          [] (auto& o, auto& v) { o.setup.blockSizes = blockSizesFrom (v); } },
    Row { "--tail",
          "SECONDS",
          "how long to go on behind the end of the file (default 2)",
          [] (auto& o, auto& v) { o.tailSeconds = tailFrom (v); } },
    Row { "--clock",
          "host|stopped|none",
          "what the host tells about its transport: playing (default), stopped at the\n"
          "start, or nothing",
          [] (auto& o, auto& v) { o.setup.clock = clockFrom (v); } },
    Row { "--loop",
          "A:B",
          "let the song position go back to A whenever it reaches B, in quarter notes;\n"
          "the notes inside are played on each pass, and those still held at B end there;\n"
          "passes follow each other until the file's own length is over",
          [] (auto& o, auto& v) { o.loop = loopFrom (v); } },
    Row { "--list-params",
          "",
          "print the host parameters, with --set already done; needs no input",
          [] (auto& o, auto&) { o.listsParameters = true; } },
    Row { "--help", "", "print this", [] (auto& o, auto&) { o.showsHelp = true; } },
    Row { "--version", "", "print the version", [] (auto& o, auto&) { o.showsVersion = true; } },
};

const Row& rowOf (std::string_view name)
{
    const auto row = std::ranges::find (rows, name, &Row::name);

    if (row == rows.end())
        throw ArgumentError ("there is no option '" + std::string (name) + "'; --help shows them all");

    return *row;
}

void applyRow (const Row& row, Options& options, const std::string& value)
{
    try
    {
        row.apply (options, value);
    }
    catch (const ArgumentError& error)
    {
        throw ArgumentError (std::string (row.name) + " " + error.what());
    }
}

void setInput (Options& options, const std::string& text)
{
    if (options.input)
        throw ArgumentError ("one input file is enough; what is '" + text + "'?");

    options.input = fileFrom (text);
}

/** Outputs must not fall on each other or on an input. */
void checkFilesDiffer (const Options& options)
{
    std::vector<juce::File> files;

    for (const auto& file : { options.input,
                              options.stateFile,
                              options.presetFile,
                              options.soundFile,
                              options.wavFile,
                              options.midiFile,
                              options.eventsFile,
                              options.newStateFile })
    {
        if (! file)
            continue;

        if (std::ranges::find (files, *file) != files.end())
            throw ArgumentError ("'" + file->getFullPathName().toStdString() + "' is given twice");

        files.push_back (*file);
    }
}

void checkComplete (const Options& options)
{
    if (options.showsHelp || options.showsVersion)
        return;

    if (! options.input && ! options.listsParameters && ! options.newStateFile)
        throw ArgumentError ("which MIDI file? --help shows how to call this");

    if (options.input && ! options.listsParameters && ! options.wavFile && ! options.midiFile
        && ! options.eventsFile && ! options.newStateFile)
        throw ArgumentError ("nothing to write: give --out-wav, --out-midi or --out-events");

    if (! options.input && (options.wavFile || options.midiFile || options.eventsFile))
        throw ArgumentError ("which MIDI file? --help shows how to call this");

    checkFilesDiffer (options);
}
/** Takes the arguments one after the other. */
class Parser
{
public:
    explicit Parser (std::span<const std::string> argumentsToUse) : rest (argumentsToUse) {}

    Options parse()
    {
        while (! rest.empty())
            parseArgument (take());

        checkComplete (options);
        return options;
    }

private:
    const std::string& take()
    {
        const auto& first = rest.front();
        rest = rest.subspan (1);
        return first;
    }

    void parseArgument (const std::string& argument)
    {
        if (onlyInput || ! argument.starts_with ('-'))
            setInput (options, argument);
        else if (argument == "--")
            onlyInput = true;
        else
            parseOption (argument);
    }

    void parseOption (const std::string& argument)
    {
        const auto equals = argument.find ('=');
        const auto& row = rowOf (std::string_view (argument).substr (0, equals));

        if (! row.takesValue() && equals != std::string::npos)
            throw ArgumentError (std::string (row.name) + " takes no value");

        if (! row.takesValue())
            applyRow (row, options, {});
        else if (equals != std::string::npos)
            applyRow (row, options, argument.substr (equals + 1));
        else
            applyRow (row, options, takeValueOf (row));
    }

    const std::string& takeValueOf (const Row& row)
    {
        if (rest.empty() || rest.front().starts_with ("--"))
            throw ArgumentError (std::string (row.name) + " needs a value: " + std::string (row.value));

        return take();
    }

    std::span<const std::string> rest;
    Options options;
    bool onlyInput = false; // behind "--"
};
} // namespace

Options parseArguments (std::span<const std::string> arguments)
{
    return Parser (arguments).parse();
}

std::string helpText()
{
    constexpr std::size_t column = 29;
    std::string text = "Usage: vornel-render [options] INPUT.mid\n\n"
                       "Plays a MIDI file through Vornel, as a host does, and writes what comes out.\n\n";

    for (const auto& row : rows)
    {
        auto call = "  " + std::string (row.name) + (row.takesValue() ? " " : "") + std::string (row.value);
        call.resize (std::max (column, call.size() + 2), ' ');
        text += call;

        for (const auto letter : row.help)
            text += letter == '\n' ? "\n" + std::string (column, ' ') : std::string (1, letter);

        text += '\n';
    }

    return text + "\nExit status: 0 done, 1 a file cannot be read or written, 2 wrong arguments,\n"
           "130 interrupted.\n";
}
} // namespace Zn::Render
