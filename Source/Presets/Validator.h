#pragma once

#include <juce_core/juce_core.h>

#include <functional>
#include <map>
#include <mutex>
#include <utility>

namespace Zn::Presets::Validation
{
/** Remembers which preset files are valid. Get it as a Singleton.

    A verdict holds as long as the process: a file edited from outside keeps its first. There is none for a
    file that does not exist, so that a name which was tried too early can still be saved. Each kind of preset
    judges for itself, since what one refuses is the other's. Thread: any but audio.
*/
class Validator
{
public:
    /** `judge` is asked at the first time only. */
    bool isValid (const juce::String& product, const juce::File& file, const std::function<bool()>& judge);

    /** What we have written ourselves is valid, whatever was there before. */
    void setValid (const juce::String& product, const juce::File& file);

private:
    struct Record
    {
        bool isValid = false;
        bool isKnown = false;
    };

    using Key = std::pair<juce::String, juce::String>; // product, full path

    std::mutex lock; // never held while a file is judged
    std::map<Key, Record> records;
};
} // namespace Zn::Presets::Validation
