#pragma once

#include "Sequencer/TimedNote.h"

#include <juce_core/juce_core.h>
#include <nlohmann/json.hpp>

#include <deque>
#include <map>
#include <vector>

namespace Zn::GUI
{
/** What a list shows of a preset once its file has been read. */
struct PresetPreview
{
    std::vector<Sequencer::TimedNote> steps; // of the first pattern that has any
    double quarters = 0.0;                   // length of that pattern
    int numPatterns = 0;                     // that have steps
    bool bringsSound = false;

    /** Of a document as it stands in a file; says nothing of what it does not understand. */
    static PresetPreview of (nlohmann::json& document);
};

/** The previews of preset files. Looks at no file while something waits for it: what is not known yet comes with one of
    the next calls of readSome(), newest wish first. Thread: message.
*/
class PresetPreviews
{
public:
    /** Null while it has not been read; it will be then. Holds until the next readSome(). */
    const PresetPreview* find (const juce::File& file);

    /** Files may be others now: those that are asked for from now on are read again where that is so. */
    void lookAgain();

    /** Reads a few of those that were asked for. Whether there were any. */
    bool readSome();

private:
    struct Record
    {
        juce::Time time {};
        bool isFresh = false;
        PresetPreview preview {};
    };

    std::map<juce::String, Record> records; // by full path
    std::deque<juce::File> wanted;          // newest first
};
} // namespace Zn::GUI
