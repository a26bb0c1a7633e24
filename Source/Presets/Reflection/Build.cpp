#include "Presets/Reflection/Build.h"

namespace Zn::Build
{
constexpr Version version { ZN_VERSION_MAJOR, ZN_VERSION_MINOR, ZN_VERSION_PATCH };
} // namespace Zn::Build
