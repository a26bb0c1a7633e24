#pragma once

#include <atomic>
#include <span>
#include <string>

namespace Zn::TonqTool
{
/** The whole program, from the arguments behind its name to its exit status: 0 done, 1 a file is refused, or cannot be
    read or written, 2 wrong arguments, 130 interrupted. Errors go to the error stream.
*/
int runTool (std::span<const std::string> arguments, const std::atomic<bool>& interrupted);
} // namespace Zn::TonqTool
