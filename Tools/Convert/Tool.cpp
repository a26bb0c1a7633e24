#include "Tool.h"

#include "Conversion.h"
#include "Support/Arguments.h"
#include "Support/Errors.h"

#include <iostream>

namespace Zn::TonqTool
{
namespace
{
using Tools::ArgumentError;
using Tools::FileError;

constexpr int fileStatus = 1, argumentStatus = 2, interruptedStatus = 130;

constexpr auto helpText = R"(Usage: vornel-tonq [--force] SOURCE TARGET

Makes a ".tnq" file of a WAV, AIFF or FLAC file, or the other way round. What SOURCE is, its content
tells; what TARGET becomes, the end of its name: .tnq, .wav, .aif, .aiff or .flac.

The sample rate, the channels and every sample stay as they are:
  16 and 24 bits   are kept by all kinds of files
  32 bits          whole numbers or floating point, are kept by .tnq and WAV, and refused for others
  8 bits           become 16 in a .tnq file, and stay so on the way back
  12 and 20 bits   of FLAC become 16 and 24 likewise; those of others are refused
  channels         are up to 32, of FLAC up to 8
  sample rates     may have a fraction in a .tnq file only
What cannot be kept is refused, and so is a file that breaks off or is damaged, as far as it tells.
Titles, marks and the like stay too, up to 64 KiB, where the sound goes back to the kind of file that
it came from; those of FLAC are lost.

  --force          write over a TARGET that is there
  --help           print this
  --version        print the version

TARGET appears when it is complete; until then, what was there stays.

Exit status: 0 done, 1 a file is refused, or cannot be read or written, 2 wrong arguments, 130
interrupted.
)";

Tools::Arguments argumentsOf (std::span<const std::string> words)
{
    auto arguments = Tools::Arguments::from (words, "--force");

    if (arguments.files.size() != 2)
        throw ArgumentError ("needs two files, SOURCE and TARGET; --help tells more");

    return arguments;
}

int run (std::span<const std::string> words, const std::atomic<bool>& interrupted)
{
    if (words.size() == 1 && words.front() == "--help")
    {
        std::cout << helpText;
        return 0;
    }

    if (words.size() == 1 && words.front() == "--version")
    {
        std::cout << "vornel-tonq " << ZN_TONQ_VERSION << '\n';
        return 0;
    }

    const auto arguments = argumentsOf (words);
    const auto& target = arguments.files[1];

    if (! arguments.hasSwitch && target.exists())
        throw FileError (target.getFullPathName().toStdString()
                         + ": is there already; --force writes over it");

    return convert (arguments.files[0], target, interrupted) ? 0 : interruptedStatus;
}

int report (const std::string& message, int status)
{
    std::cerr << "vornel-tonq: " << message << '\n';
    return status;
}
} // namespace

int runTool (std::span<const std::string> arguments, const std::atomic<bool>& interrupted)
{
    try
    {
        return run (arguments, interrupted);
    }
    catch (const ArgumentError& error)
    {
        return report (error.what(), argumentStatus);
    }
    catch (const std::exception& error)
    {
        return report (error.what(), fileStatus);
    }
}
} // namespace Zn::TonqTool
