#pragma once

#include "Foundation/Binaries.h"

#include <juce_core/juce_core.h>

namespace Zn::GUI
{
/** The editor's embedded files: scheme, icons and fonts. Thread: any. */
const Binaries::Library& resources();

/** Of a file by its own name, as "pencil.svg"; empty where there is none. */
Binaries::Bytes contentOf (const juce::String& fileName, const Binaries::Library& library = resources());

/** Embedded text, as it lies in the program. */
std::string_view textOf (Binaries::Bytes content) noexcept;
} // namespace Zn::GUI
