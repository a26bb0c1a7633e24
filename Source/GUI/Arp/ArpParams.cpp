#include "GUI/Arp/ArpParams.h"

namespace Zn::GUI
{
ArpParams::ArpParams (EditorContext& contextToUse)
    : Element (contextToUse.canvas, "ArpParamModule"), context (contextToUse)
{}
} // namespace Zn::GUI
