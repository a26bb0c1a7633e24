#include "GUI/Player/PlayerBand.h"

namespace Zn::GUI
{
PlayerBand::PlayerBand (EditorContext& contextToUse)
    : Element (contextToUse.canvas, "MidiPlayer"), context (contextToUse)
{}
} // namespace Zn::GUI
