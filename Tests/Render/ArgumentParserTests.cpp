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

TEST (ArgumentParser, RefusesWhatMakesNoSense)
{
    const std::pair<const char*, std::vector<const char*>> rows[] {
        { "which MIDI file", { "", "--out-wav|x|--state-out|y" } },
        { "nothing to write", { "in.mid" } },
        { "one input", { "in.mid|other.mid" } },
        { "no option '--frobnicate'", { "--frobnicate|x" } },
        { "no option '-x'", { "-x" } },
        { "--out-wav needs a value: FILE", { "--out-wav" } },
        { "--out-wav needs a value", { "--out-wav|--out-midi|x" } },
        { "--out-wav needs the name", { "--out-wav||" } },
        { "takes no value", { "--help=yes" } },
        { "16, 24 or 32, not '20'", { "--wav-bits|20" } },
        { "ID=TEXT", { "--set|Gain", "--set|=1" } },
        { "0 to 7", { "--slot|8", "--slot|1x" } },
        { "whole number", { "--seed|1.5" } },
        { "note 0..127 = slot 1..8",
          { "--learn||",
            "--learn|note 128 = slot 1",
            "--learn|note 36 = slot 0",
            "--learn|note 36 = slot 2 3",
            "--learn|note 36 = Transpose" } },
        { "or 'cc 64 = ID'", { "--learn|cc 64 =" } },
        { "controller 64 only", { "--learn|cc 1 = Transpose" } },
        { "4 to 999", { "--bpm|nan", "--bpm|1000" } },
        { "8000 to 384000", { "--sample-rate|7999", "--sample-rate|inf" } },
        { "1 to 65536", { "--block|0" } },
        { "random:SEED:MAX", { "--block|random:1", "--block|random::5", "--block|random:1:0" } },
        { "0 to 3600", { "--tail|-1" } },
        { "host, stopped or none", { "--clock|internal" } },
        { "A:B", { "--loop|4", "--loop|:" } },
        { "A before B", { "--loop|4:4" } },
        { "from 0 on", { "--loop|-1:4" } },
        { "given twice",
          { "in.mid|--out-midi|./in.mid", "in.mid|--out-midi|x|--out-wav|x", "--state-in|x|--state-out|x" } }
    };

    for (const auto& [message, lines] : rows)
        for (const auto* line : lines)
            EXPECT_THAT ([line] { parsed (line); },
                         testing::ThrowsMessage<ArgumentError> (testing::HasSubstr (message)))
                << line;
}
