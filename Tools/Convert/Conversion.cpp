#include "Conversion.h"

#include "SoundInput.h"
#include "SoundOutput.h"

#include <algorithm>
#include <vector>

namespace Zn::TonqTool
{
namespace
{
constexpr juce::int64 framesAtATime = 8192;

/** Room for some frames of every channel, as whole numbers or the bits of floating point. */
class Frames
{
public:
    explicit Frames (int numChannels) : samples (static_cast<std::size_t> (numChannels * framesAtATime))
    {
        for (auto channel = 0; channel < numChannels; ++channel)
            channels.push_back (samples.data() + channel * framesAtATime);
    }

    std::span<int* const> get() const noexcept { return channels; }

private:
    std::vector<int> samples;
    std::vector<int*> channels;
};

/** What the target makes of the source's depth. */
SoundShape shapeFor (const SoundInput& input, SoundKind target)
{
    auto shape = input.getShape();

    if (target == SoundKind::tonq)
        shape.bits = shape.bits <= 16 ? 16 : shape.bits <= 24 ? 24 : 32;

    return shape;
}
} // namespace

bool convert (const juce::File& source, const juce::File& target, const std::atomic<bool>& interrupted)
{
    SoundInput input (source);
    const auto kind = kindFromName (target);

    if (input.isTonq() == (kind == SoundKind::tonq))
        input.fail (input.isTonq() ? "is a .tnq file, which becomes a .wav, .aiff or .flac file"
                                   : "is no .tnq file, and can become nothing but one");

    SoundOutput output (target, kind, shapeFor (input, kind), input.getMetadata());
    const Frames frames (input.getShape().numChannels);

    for (juce::int64 start = 0; start < input.getNumFrames(); start += framesAtATime)
    {
        if (interrupted)
            return false;

        const auto numFrames = static_cast<int> (std::min (framesAtATime, input.getNumFrames() - start));

        input.read (frames.get(), start, numFrames);
        output.write (frames.get(), numFrames);
    }

    output.finish();
    return true;
}
} // namespace Zn::TonqTool
