#include "GUI/Arp/ArpHeader.h"

namespace Zn::GUI
{
ArpHeader::ArpHeader (EditorContext& contextToUse)
    : Element (contextToUse.canvas, "ArpHeader"), context (contextToUse)
{}
} // namespace Zn::GUI
