#pragma once

#include <juce_core/juce_core.h>
#include <nlohmann/json.hpp>

#include <map>
#include <mutex>

namespace Zn::Presets
{
/** The headers of all preset files of the process, read once as long as a file's time and size stay the same. Get
    it as a Singleton. Thread: any but audio.
*/
class HeaderCache
{
public:
    /** Null if the file can be no preset. */
    nlohmann::json get (const juce::File& file);

    void forget (const juce::File& file);

private:
    struct Record
    {
        juce::Time time;
        juce::int64 size = 0;
        nlohmann::json header;
    };

    std::mutex lock;
    std::map<juce::String, Record> records; // by full path
};

/** The stamp in a header; empty if there is none. */
juce::String idOf (const nlohmann::json& header);
} // namespace Zn::Presets
