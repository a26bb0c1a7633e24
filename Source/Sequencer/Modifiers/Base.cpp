#include "Sequencer/Modifiers/Base.h"

namespace Zn::Sequencer::Modifiers
{
void Base::reflect (Reflector& r)
{
    constexpr auto longestName = 1024; // characters

    r.add ("name", name);

    if (r.isLoading())
        name = name.substring (0, longestName);

    reflectFields (r);
}
} // namespace Zn::Sequencer::Modifiers
