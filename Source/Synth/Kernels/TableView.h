#pragma once

namespace Zn::Audio::Kernels
{
/** One cycle of a sound as the oscillator reads it.

    Channels are interleaved, so that one load brings a sample's neighbours of both sides. One guard frame ahead of
    the first and two behind the last repeat the ends: reading four neighbours needs no test at either end. The last
    frame equals the first, as the cycle is read over numFrames - 1.
*/
struct TableView
{
    static constexpr int guardFramesAhead = 1, guardFramesBehind = 2;

    const float* frames = nullptr; // the first frame; the guard ahead lies before it
    int numFrames = 0;             // at least 2, without the guards
    int numChannels = 0;           // 1 or 2
};
} // namespace Zn::Audio::Kernels
