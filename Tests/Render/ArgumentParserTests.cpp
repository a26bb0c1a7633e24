#include "Render/ArgumentParser.h"
#include "Render/Errors.h"

#include <gmock/gmock.h>

#include <sstream>

using namespace Zn::Render;

namespace
{
/** A command line, its arguments between strokes. */
Options parsed (const std::string& line)
{
    std::istringstream stream (line);
    std::vector<std::string> arguments;

    for (std::string argument; std::getline (stream, argument, '|');)
        arguments.push_back (argument);

    return parseArguments (arguments);
}
} // namespace

TEST (ArgumentParser, ReadsEveryOption)
{
    const auto options = parsed (
        "--out-wav=a.wav|--wav-bits|16|--out-midi|b.mid|--out-events|c|--set|Gain=-3 dB|--set|Name=a=b|"
        "--learn|note 36=slot 2|--learn| cc 64  = Filter-Cutoff |--slot|7|--seed|-5|--bpm|99.5|"
        "--sample-rate|44100|--block|random:9:300|--tail|0|--clock|stopped|--loop|0.5:8|--|-in.mid");

    EXPECT_EQ (options.wavFile->getFileName(), "a.wav");
    EXPECT_EQ (options.wavBits, 16);
    EXPECT_EQ (options.midiFile->getFileName(), "b.mid");
    EXPECT_EQ (options.eventsFile->getFileName(), "c");
    EXPECT_EQ (options.settings[0].text, "-3 dB");
    EXPECT_EQ (options.settings[1].identifier, "Name");
    EXPECT_EQ (options.settings[1].text, "a=b");
    EXPECT_EQ (options.learned[0].number, 36);
    EXPECT_EQ (options.learned[0].slot, 1);
    EXPECT_EQ (options.learned[1].number, 64);
    EXPECT_EQ (options.learned[1].slot, std::nullopt);
    EXPECT_EQ (options.learned[1].parameter, "Filter-Cutoff");
    EXPECT_EQ (options.slot, 7);
    EXPECT_EQ (options.seed, -5);
    EXPECT_EQ (options.bpm, 99.5);
    EXPECT_EQ (options.sampleRate, 44100.0);
    EXPECT_EQ (options.setup.blockSizes.getLargest(), 300);
    EXPECT_EQ (options.tailSeconds, 0.0);
    EXPECT_EQ (options.setup.clock, HostClock::Mode::stopped);
    EXPECT_EQ (options.loop->startQuarters, 0.5);
    EXPECT_EQ (options.loop->endQuarters, 8.0);
    EXPECT_EQ (options.input->getFileName(), "-in.mid");
}

TEST (ArgumentParser, RefusesWhatMakesNoSense)
{
    const std::pair<const char*, const char*> rows[] {
        { "", "which MIDI file" },
        { "in.mid", "nothing to write" },
        { "in.mid|other.mid", "one input" },
        { "--preset|x", "no option '--preset'" },
        { "-x", "no option '-x'" },
        { "--out-wav", "--out-wav needs a value: FILE" },
        { "--out-wav|--out-midi|x", "--out-wav needs a value" },
        { "--out-wav||", "--out-wav needs the name" },
        { "--help=yes", "takes no value" },
        { "--wav-bits|20", "16, 24 or 32, not '20'" },
        { "--set|Gain", "ID=TEXT" },
        { "--set|=1", "ID=TEXT" },
        { "--slot|8", "0 to 7" },
        { "--slot|1x", "0 to 7" },
        { "--seed|1.5", "whole number" },
        { "--learn||", "note 0..127 = slot 1..8" },
        { "--learn|note 128 = slot 1", "note 0..127 = slot 1..8" },
        { "--learn|note 36 = slot 0", "note 0..127 = slot 1..8" },
        { "--learn|note 36 = slot 2 3", "note 0..127 = slot 1..8" },
        { "--learn|note 36 = Transpose", "note 0..127 = slot 1..8" },
        { "--learn|cc 64 =", "or 'cc 64 = ID'" },
        { "--learn|cc 1 = Transpose", "controller 64 only" },
        { "--bpm|nan", "4 to 999" },
        { "--bpm|1000", "4 to 999" },
        { "--sample-rate|7999", "8000 to 384000" },
        { "--sample-rate|inf", "8000 to 384000" },
        { "--block|0", "1 to 65536" },
        { "--block|random:1", "random:SEED:MAX" },
        { "--block|random::5", "random:SEED:MAX" },
        { "--block|random:1:0", "random:SEED:MAX" },
        { "--tail|-1", "0 to 3600" },
        { "--clock|internal", "host, stopped or none" },
        { "--loop|4", "A:B" },
        { "--loop|4:4", "A before B" },
        { "--loop|-1:4", "from 0 on" },
        { "--loop|:", "A:B" },
        { "in.mid|--out-midi|./in.mid", "given twice" },
        { "in.mid|--out-midi|x|--out-wav|x", "given twice" }
    };

    for (const auto& [line, message] : rows)
    {
        try
        {
            parsed (line);
            ADD_FAILURE() << "accepted: " << line;
        }
        catch (const ArgumentError& error)
        {
            EXPECT_THAT (error.what(), testing::HasSubstr (message)) << line;
        }
    }
}

TEST (ArgumentParser, HelpsWithoutAnInput)
{
    EXPECT_TRUE (parsed ("--help").showsHelp);
    EXPECT_TRUE (parsed ("--version").showsVersion);
    EXPECT_TRUE (parsed ("--list-params|--set|a=b").listsParameters);
}
