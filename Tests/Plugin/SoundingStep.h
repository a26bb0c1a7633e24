#pragma once

#include "Plugin/ProcessorFixture.h"

#include <gmock/gmock.h>

namespace Zn::Audio::Plugins::Vornel
{
/** A chord in the middle of its first, long step. */
struct SoundingStep : ProcessorFixture
{
    explicit SoundingStep (bool keyMode, Role role = Role::instrument, int blockSize = 480)
        : ProcessorFixture (role), host (processor, 48000.0, blockSize)
    {
        const Sequencer::PatternController::Edit edit (state.patterns);
        state.keyMode = keyMode;
        drawQuarters (1, 1, 1.0);
        drawQuarters (0, 0, 1.0);
        auto& steps = state.patterns.getSlots()[0].pattern.steps;

        for (size_t i = 0; i < 4; ++i)
            for (auto row : { 1, 2 })
            {
                steps.push_back (steps[i]);
                steps.back().event.noteNum = lowestHeld + row;
            }
    }

    void sound()
    {
        host.send (events ("on 60 @0, on 64 @0, on 67 @0"));
        host.run (quarter / 2);
        ASSERT_THAT (host.getSounding(), testing::ElementsAre (60, 64, 67));
    }

    void letGo() { host.send (events ("off 60 @0, off 64 @0, off 67 @0, cc 64 0 @0")); }

    /** Changes the drawing that sounds. */
    template <typename Change>
    void edit (Change&& change)
    {
        const Sequencer::PatternController::Edit transaction (state.patterns);

        for (auto& step : state.patterns.getSlots()[0].pattern.steps)
            change (step);
    }

    TestHost host;
};
} // namespace Zn::Audio::Plugins::Vornel
