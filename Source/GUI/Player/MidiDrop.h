#pragma once

#include "GUI/Editor/FileDrops.h"
#include "GUI/Player/PlayerActions.h"

namespace Zn::GUI
{
/** MIDI files that are dropped on the window: the first is played. Thread: message. */
FileDrops::Kind midiDrop (PlayerActions& actions);
} // namespace Zn::GUI
