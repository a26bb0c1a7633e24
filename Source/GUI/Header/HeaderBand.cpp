#include "GUI/Header/HeaderBand.h"

namespace Zn::GUI
{
HeaderBand::HeaderBand (EditorContext& contextToUse)
    : Element (contextToUse.canvas, "Header"), context (contextToUse)
{}
} // namespace Zn::GUI
