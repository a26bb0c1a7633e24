#include "Presets/HeaderCache.h"

#include "Presets/DocumentHeader.h"
#include "Presets/HeaderReader.h"
#include "Presets/PresetFile.h"

#include <string>

namespace Zn::Presets
{
nlohmann::json HeaderCache::get (const juce::File& file)
{
    const std::scoped_lock guard (lock);
    auto& record = records[file.getFullPathName()];
    const auto time = file.getLastModificationTime();
    const auto size = file.getSize();

    if (record.header.is_null() || record.time != time || record.size != size)
    {
        const auto bytes = PresetFile::readBytes (file);
        record = { time, size, bytes ? readHeader (*bytes) : nlohmann::json() };
    }

    return record.header;
}

void HeaderCache::forget (const juce::File& file)
{
    const std::scoped_lock guard (lock);
    records.erase (file.getFullPathName());
}

juce::String idOf (const nlohmann::json& header)
{
    if (! header.is_object())
        return {};

    const auto id = header.find ("id");

    if (id == header.end() || ! id->is_string())
        return {};

    const auto& text = id->get_ref<const std::string&>();
    return juce::String::fromUTF8 (text.data(), static_cast<int> (text.size())).substring (0, longestText);
}
} // namespace Zn::Presets
