#include "Plugin/Bases/PresetCacher.h"

#include "Presets/Reflection/JsonText.h"

#include <utility>

namespace Zn::Audio::Plugin
{
namespace
{
/** A program that never lets the timer run could load one state after another. */
constexpr std::size_t mostTextsKept = 4;
} // namespace

PresetCacher::PresetCacher (juce::AudioProcessor& processorToFollow, MakeDocument makeDocumentToUse)
    : processor (processorToFollow)
    , makeDocument (std::move (makeDocumentToUse))
    , timer (intervalMilliseconds, [this] { update(); })
{
    publish (makeNew());
    processor.addListener (this);
}

PresetCacher::~PresetCacher()
{
    processor.removeListener (this);
}

std::string PresetCacher::refresh()
{
    auto document = makeNew();
    auto text = Json::toText (document);
    publish (std::move (document));
    return text;
}

nlohmann::json PresetCacher::getNewest()
{
    auto [document, texts] = copyAll();

    for (const auto& text : texts)
        if (const auto loaded = Json::parse (text); loaded.is_object())
            document.update (loaded, true); // what it leaves out stays, in objects inside objects too

    return document;
}

std::pair<nlohmann::json, std::vector<std::string>> PresetCacher::copyAll()
{
    const std::scoped_lock guard (lock);
    return { reader.newest(), expected };
}

void PresetCacher::expect (std::string_view text)
{
    const std::scoped_lock guard (lock);
    expected.emplace_back (text);
    ++numUnmet;
}

void PresetCacher::expectationMet() noexcept
{
    markOutOfDate();

    const auto shouldUpdate = [this] {
        const std::scoped_lock guard (lock);
        return --numUnmet == 0 && expected.size() > mostTextsKept;
    };

    if (shouldUpdate())
        update();
}

nlohmann::json PresetCacher::makeNew()
{
    outOfDate.store (false); // first: what changes meanwhile counts for the next one
    return makeDocument();
}

void PresetCacher::publish (nlohmann::json document)
{
    const std::scoped_lock guard (lock);
    writer.publish ([&document] (nlohmann::json& frame) { frame.swap (document); });

    if (numUnmet == 0)
        expected.clear();
}

void PresetCacher::update() noexcept
{
    if (! outOfDate.load())
        return;

    try
    {
        publish (makeNew());
    }
    catch (...) // what is here stays until the next try
    {
        markOutOfDate();
    }
}
} // namespace Zn::Audio::Plugin
