#pragma once

#include "Parameters/Parameter.h"

#include <atomic>
#include <memory>

namespace Zn::Audio::Plugin
{
/** A parameter as learned messages move it: at once for the sound, and a moment later for the host and the editor,
    whose listeners lock and draw.
*/
class LearnedParam
{
public:
    /** Raw sets of the parameter must be fit for the audio thread, as those of any forwarder are. */
    explicit LearnedParam (std::unique_ptr<Parameters::Parameter> parameterToMove);

    /** A proportion of the range. Thread: audio. */
    void set (float normalised) noexcept;

    /** Tells everyone else of the last value that was set, if there is a new one. Thread: message. */
    void tellListeners();

private:
    const std::unique_ptr<Parameters::Parameter> parameter;
    std::atomic<float> lastSet { 0.0f };
    std::atomic<bool> isNew { false }; // set: audio, cleared: message
};
} // namespace Zn::Audio::Plugin
