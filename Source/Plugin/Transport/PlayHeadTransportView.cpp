#include "Plugin/Transport/PlayHeadTransportView.h"

#include "Plugin/Transport/TransportSlice.h"

namespace Zn::Audio
{
juce::Optional<juce::AudioPlayHead::PositionInfo> PlayHeadTransportView::getPosition() const
{
    const auto& clock = *slice.view;
    const auto positions = clock.getPpqBySample();
    const auto offset = static_cast<std::size_t> (slice.offset);

    auto position = *clock.getPosition();
    position.setPpqPosition (offset < positions.size() ? positions[offset] : clock.getEndPpq());
    position.setBpm (clock.getTempo());
    position.setTimeInSamples (clock.getTimeInSamples() + slice.offset);
    return position;
}
} // namespace Zn::Audio
