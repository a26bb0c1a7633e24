#include "GUI/Widgets/Learning.h"

#include "GUI/Widgets/ValueText.h"

#include <algorithm>

namespace Zn::GUI
{
Learning::Learning (LearnMap& mapToUse)
    : map (mapToUse), listener (mapToUse.getBroadcaster(), [this] { callListeners(); })
{}

void Learning::setActive (bool shouldBeActive)
{
    if (active == shouldBeActive)
        return;

    active = shouldBeActive;

    if (! active)
        map.cancel();

    callListeners();
}

void Learning::arm (const Target& target)
{
    if (isArmed (target))
        map.cancel();
    else
        map.learn (target);
}

void Learning::disarm()
{
    map.cancel();
}

bool Learning::isArmed (const Target& target) const
{
    return map.getLearning() == target;
}

void Learning::forget (const Target& target)
{
    map.clear (target);
}

juce::String Learning::textOf (const Target& target) const
{
    const auto bindings = map.getBindings();
    const auto isIts = [&] (const auto& binding) { return binding.target == target; };
    const auto found = std::find_if (bindings.begin(), bindings.end(), isIts);

    if (found == bindings.end())
        return {};

    return target.isSlot() ? pitchName (found->number, middleC) : juce::String ("Pedal");
}
} // namespace Zn::GUI
