#include "Midi/Learn/DownKeys.h"

#include <utility>

namespace Zn::Midi::Learn
{
bool DownKeys::goesOn (const Event& event, bool isHandled) noexcept
{
    const auto isKey = isNote (event);
    const auto isPress = isKey ? isNoteOn (event) : isPedalDown (event);
    auto& went = isKey ? keys[static_cast<std::size_t> (noteOf (event))] : pedal;

    if (isPress)
    {
        if (went != Went::on) // struck again before its lift, the key still has a note to end
            went = isHandled ? Went::toHandler : Went::on;

        return ! isHandled;
    }

    const auto pressWent = std::exchange (went, Went::nowhere);
    return pressWent == Went::on || (pressWent == Went::nowhere && ! isHandled);
}
} // namespace Zn::Midi::Learn
