#include "GUI/Sound/SoundBand.h"

namespace Zn::GUI
{
SoundBand::SoundBand (EditorContext& contextToUse)
    : Element (contextToUse.canvas, "SoundModule"), context (contextToUse)
{}
} // namespace Zn::GUI
