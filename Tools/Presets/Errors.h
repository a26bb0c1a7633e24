#pragma once

#include "Support/Errors.h"

namespace Zn::PresetTool
{
using Tools::ArgumentError;

/** A file is no preset, or cannot be read or written; the text tells why, without the file's name. */
struct Refused : std::runtime_error
{
    using std::runtime_error::runtime_error;
};
} // namespace Zn::PresetTool
