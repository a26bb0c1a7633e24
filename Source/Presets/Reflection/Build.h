#pragma once

#include "Presets/Reflection/Version.h"

namespace Zn::Build
{
/** Of this program, from the build's own project line; every file that it writes carries it. */
extern const Version version;
} // namespace Zn::Build
