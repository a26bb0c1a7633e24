#pragma once

#include <stdexcept>

namespace Zn::Tools
{
/** The command line asks for something that does not exist. Ends the program with status 2. */
struct ArgumentError : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

/** A file cannot be read or written; the text names it. Ends the program with status 1. */
struct FileError : std::runtime_error
{
    using std::runtime_error::runtime_error;
};
} // namespace Zn::Tools
