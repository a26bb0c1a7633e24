#include "GUI/Pattern/UndoneSlot.h"

#include <utility>

namespace Zn::GUI
{
UndoneSlot::UndoneSlot (EditorContext& contextToUse)
    : context (contextToUse)
    , departure (contextToUse.edits.aboutToTravel, [this] { before = drawings(); })
    , arrival (contextToUse.edits.travelled, [this] { openChanged(); })
{}

std::vector<Drawing> UndoneSlot::drawings() const
{
    std::vector<Drawing> all;

    for (const auto& slot : context.state().patterns.getSlots())
        all.push_back (Drawing::of (slot));

    return all;
}

void UndoneSlot::openChanged()
{
    const auto old = std::exchange (before, {});
    const auto now = drawings();
    const auto hasChanged = [&] (std::size_t slot) {
        return slot < old.size() && ! now[slot].playsAs (old[slot]);
    };

    if (hasChanged (static_cast<std::size_t> (context.shownSlot.get())))
        return;

    for (std::size_t slot = 0; slot < now.size(); ++slot)
        if (hasChanged (slot))
            return context.shownSlot.set (static_cast<int> (slot));
}
} // namespace Zn::GUI
