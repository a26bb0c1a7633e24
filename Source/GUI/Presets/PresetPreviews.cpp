#include "GUI/Presets/PresetPreviews.h"

#include "Presets/PresetFile.h"
#include "Presets/Reflection/Loader.h"
#include "Sequencer/PatternSlot.h"

#include <algorithm>

namespace Zn::GUI
{
namespace
{
constexpr auto filesInOneGo = 3;
constexpr std::size_t mostWanted = 32; // more than a list shows; what was scrolled past is dropped

/** The array of patterns in a document; null if there is none. */
nlohmann::json* patternsIn (nlohmann::json& document)
{
    auto* node = &document;

    for (auto depth = 0; depth < 2; ++depth)
    {
        if (! node->is_object() || ! node->contains ("Patterns"))
            return nullptr;

        node = &node->at ("Patterns");
    }

    return node->is_array() ? node : nullptr;
}

bool hasEnabledSteps (const Sequencer::PatternSlot& slot)
{
    const auto& steps = slot.pattern.steps;
    return std::any_of (steps.begin(), steps.end(), [] (const auto& step) { return step.enabled; });
}
} // namespace

PresetPreview PresetPreview::of (nlohmann::json& document)
{
    PresetPreview preview;

    if (document.is_object() && document.contains ("Params"))
        preview.bringsSound = document.at ("Params").is_object();

    auto* patterns = patternsIn (document);

    for (std::size_t i = 0; patterns != nullptr && i < patterns->size(); ++i)
    {
        Sequencer::PatternSlot slot;
        Json::load (slot, (*patterns)[i], ReflectorContext::forPresetFile());

        if (! hasEnabledSteps (slot))
            continue;

        if (preview.numPatterns++ == 0)
        {
            preview.steps = slot.pattern.steps;
            preview.quarters = slot.length();
        }
    }

    return preview;
}

const PresetPreview* PresetPreviews::find (const juce::File& file)
{
    const auto known = records.find (file.getFullPathName());
    const auto isKnown = known != records.end();

    if (! isKnown || ! known->second.isFresh)
    {
        std::erase (wanted, file);
        wanted.push_front (file);

        if (wanted.size() > mostWanted)
            wanted.pop_back();
    }

    return isKnown ? &known->second.preview : nullptr;
}

void PresetPreviews::lookAgain()
{
    for (auto& [path, record] : records)
        record.isFresh = false;
}

bool PresetPreviews::readSome()
{
    const auto hasAny = ! wanted.empty();

    for (auto left = filesInOneGo; left > 0 && ! wanted.empty(); --left)
    {
        const auto file = wanted.front();
        wanted.pop_front();

        auto& record = records[file.getFullPathName()];
        const auto time = file.getLastModificationTime();
        record.isFresh = true;

        if (record.time == time)
            continue;

        record = { .time = time, .isFresh = true };

        try
        {
            auto document = Presets::PresetFile::read (file);
            record.preview = PresetPreview::of (document);
        }
        catch (const std::exception&)
        {} // a file that breaks off has no picture
    }

    return hasAny;
}
} // namespace Zn::GUI
