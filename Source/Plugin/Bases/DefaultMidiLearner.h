#pragma once

#include "Midi/Learn/LearnerInterface.h"
#include "Midi/Learn/LearnerRecord.h"

namespace Zn::Audio::Plugin
{
/** Learns from what the audio thread leaves in a record.

    Its owner calls updateFlag on each tick of the shared timer. Thread: message.
*/
class DefaultMidiLearner : public Midi::Learn::LearnerInterface
{
public:
    /** The record outlives it. */
    explicit DefaultMidiLearner (Midi::Learn::LearnerRecord& recordToWatch) : record (recordToWatch) {}

    void learn (Take takeToCall) override;
    void cancel() override;
    bool isLearning() const noexcept override { return take != nullptr; }

    /** Offers what was captured, if anything was. */
    void updateFlag();

private:
    Midi::Learn::LearnerRecord& record;
    Take take; // empty: nobody waits
};
} // namespace Zn::Audio::Plugin
