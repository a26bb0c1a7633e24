#include "GUI/Pattern/PatternArea.h"

namespace Zn::GUI
{
PatternArea::PatternArea (EditorContext& contextToUse)
    : Element (contextToUse.canvas, "ArpEditing"), context (contextToUse)
{}
} // namespace Zn::GUI
