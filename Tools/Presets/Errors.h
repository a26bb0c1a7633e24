#pragma once

#include <stdexcept>

namespace Zn::PresetTool
{
/** The command line asks for something that does not exist. Ends the program with status 2. */
struct ArgumentError : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

/** A file is no preset, or cannot be read or written; the text tells why, without the file's name. */
struct Refused : std::runtime_error
{
    using std::runtime_error::runtime_error;
};
} // namespace Zn::PresetTool
