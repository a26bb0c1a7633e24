#include "HeldKeys.h"

namespace Zn::Render
{
namespace
{
constexpr int noteOff = 0x80, noteOn = 0x90, controller = 0xb0;
constexpr int sustainPedal = 64;
constexpr int pedalDownFrom = 64;
} // namespace

void HeldKeys::apply (std::uint8_t status, std::span<const std::uint8_t> data) noexcept
{
    const auto kind = status & 0xf0;
    const auto channel = status & 0x0f;

    if (kind == controller && data[0] == sustainPedal)
        pedals[static_cast<std::size_t> (channel)] = data[1] >= pedalDownFrom;

    if (kind != noteOn && kind != noteOff)
        return;

    auto& count = presses[indexOf (channel, data[0])];

    if (kind == noteOn && data[1] > 0)
        ++count;
    else if (count > 0)
        --count;
}

void HeldKeys::releaseAll (juce::MidiBuffer& events, int sample)
{
    for (auto channel = 0; channel < channels; ++channel)
    {
        for (auto pitch = 0; pitch < pitches; ++pitch)
            for (auto& count = presses[indexOf (channel, pitch)]; count > 0; --count)
                events.addEvent (juce::MidiMessage::noteOff (channel + 1, pitch), sample);

        if (std::exchange (pedals[static_cast<std::size_t> (channel)], false))
            events.addEvent (juce::MidiMessage::controllerEvent (channel + 1, sustainPedal, 0), sample);
    }
}
} // namespace Zn::Render
