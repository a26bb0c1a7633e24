#pragma once

#include <juce_core/juce_core.h>

#include <algorithm>

namespace Zn::GUI
{
/** What is typed to search a list: words in any order. Thread: any. */
class SearchWords
{
public:
    explicit SearchWords (const juce::String& typed) : words (juce::StringArray::fromTokens (typed, true))
    {
        words.removeEmptyStrings();
    }

    /** Whether each of them is in the one or the other. */
    bool areIn (const juce::String& name, const juce::String& category) const
    {
        return std::all_of (words.begin(), words.end(), [&] (const juce::String& word) {
            return name.containsIgnoreCase (word) || category.containsIgnoreCase (word);
        });
    }

private:
    juce::StringArray words;
};
} // namespace Zn::GUI
