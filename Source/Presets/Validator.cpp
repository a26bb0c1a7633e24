#include "Presets/Validator.h"

namespace Zn::Presets::Validation
{
bool Validator::isValid (const juce::String& product,
                         const juce::File& file,
                         const std::function<bool()>& judge)
{
    const Key key { product, file.getFullPathName() };

    {
        const std::scoped_lock guard (lock);

        if (const auto known = records.find (key); known != records.end() && known->second.isKnown)
            return known->second.isValid;
    }

    if (! file.exists())
        return false;

    const auto verdict = judge();

    const std::scoped_lock guard (lock);
    auto& record = records[key];

    if (! record.isKnown)
        record = { .isValid = verdict, .isKnown = true };

    return record.isValid;
}

void Validator::setValid (const juce::String& product, const juce::File& file)
{
    const std::scoped_lock guard (lock);
    records[{ product, file.getFullPathName() }] = { .isValid = true, .isKnown = true };
}
} // namespace Zn::Presets::Validation
