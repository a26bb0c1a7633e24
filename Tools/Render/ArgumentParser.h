#pragma once

#include "Options.h"

#include <span>
#include <string>

namespace Zn::Render
{
/** Reads the arguments behind the program's name. Throws ArgumentError that says which one is wrong and why.
*/
Options parseArguments (std::span<const std::string> arguments);

/** What --help prints. */
std::string helpText();
} // namespace Zn::Render
