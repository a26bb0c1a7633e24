#pragma once

#include "Foundation/Binaries.h"

namespace Zn::Audio::Plugins::Vornel
{
/** The presets that are part of the program, a zip archive for each kind. Thread: any. */
const Binaries::Library& factoryArchives();
} // namespace Zn::Audio::Plugins::Vornel
