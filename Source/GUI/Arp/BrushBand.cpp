#include "GUI/Arp/BrushBand.h"

namespace Zn::GUI
{
BrushBand::BrushBand (EditorContext& contextToUse)
    : Element (contextToUse.canvas, "BrushModule"), context (contextToUse)
{}
} // namespace Zn::GUI
