#pragma once

namespace Zn::TonqTool
{
enum class SoundKind
{
    tonq,
    wav,
    aiff,
    flac
};

/** What a file says of its samples, besides how many there are. */
struct SoundShape
{
    double sampleRate = 0.0; // hertz
    int numChannels = 0;
    int bits = 0; // of a sample
    bool isFloat = false;
};
} // namespace Zn::TonqTool
