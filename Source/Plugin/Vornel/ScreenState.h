#pragma once

#include "Presets/Screen.h"

namespace Zn::Audio::Plugins::Vornel
{
/** The size of the editor's window. */
class ScreenState : public Presets::Screen
{};
} // namespace Zn::Audio::Plugins::Vornel
