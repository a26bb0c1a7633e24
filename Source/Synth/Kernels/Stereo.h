#pragma once

namespace Zn::Audio::Kernels
{
/** A value for the left and one for the right side: a frame of sound or a pair of gains.

    Voices are rendered into spans of these, so that one load brings both sides, and several voices lie side by side
    in the lanes of the filter.
*/
struct Stereo
{
    float left = 0.0f, right = 0.0f;

    constexpr bool operator== (const Stereo&) const = default;
};
} // namespace Zn::Audio::Kernels
