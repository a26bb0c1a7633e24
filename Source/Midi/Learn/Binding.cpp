#include "Midi/Learn/Binding.h"

#include "Presets/Reflection/Reflector.h"

namespace Zn::Midi::Learn
{
namespace
{
void addFields (Reflector& r, Binding& binding)
{
    const juce::String slotType = "Slot", controllerType = "CC";
    auto type = binding.target.isSlot() ? slotType : controllerType;
    r.add ("type", type);

    if (type == slotType)
    {
        r.add ("note", binding.number);
        r.add ("slot", binding.target.slot);
    }
    else if (type == controllerType)
    {
        r.add ("cc", binding.number);
        r.add ("param", binding.target.param);
    }
}
} // namespace

void Binding::reflect (Reflector& r)
{
    try
    {
        addFields (r, *this);
    }
    catch (const std::exception&) // a text that is no number; the other entries are as good as before
    {
        *this = {};
    }
}
} // namespace Zn::Midi::Learn
