#include "Plugin/Vornel/BrushParam.h"

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
constexpr auto first = static_cast<int> (Brush::pencil);
constexpr auto last = static_cast<int> (Brush::chance);
} // namespace

juce::NormalisableRange<float> BrushParam::getRange() const
{
    return { static_cast<float> (first), static_cast<float> (last), 1.0f };
}

void BrushParam::setIntValue (int newValue)
{
    brush.set (static_cast<Brush> (juce::jlimit (first, last, newValue)));
}
} // namespace Zn::Audio::Plugins::Vornel
