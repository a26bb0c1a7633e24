#include "Plugin/Bases/SharedBase.h"

#include "Foundation/Threads/MessageThread.h"
#include "Plugin/Bases/FlatParams.h"
#include "Plugin/Bases/PresetTask.h"
#include "Plugin/Bases/StateChunk.h"
#include "Presets/Reflection/JsonText.h"

#include <utility>

namespace Zn::Audio::Plugin
{
/** What came from a project: the state's document, and the values that come on top of it. */
struct SharedBase::PendingLoad
{
    nlohmann::json document;
    std::optional<nlohmann::json> flatParams;
    bool waits = false; // for the message thread
};

SharedBase::~SharedBase()
{
    stopHostState();
}

void SharedBase::startHostState()
{
    cacher = std::make_unique<PresetCacher> (*this, [this] { return fullDocument(); });
    timer.emplace ([this] { tick(); });
    initialised.store (true);
}

void SharedBase::stopHostState() noexcept
{
    if (! initialised.exchange (false))
        return;

    PresetTask::getInstance().remove (this);
    lifeline.cut();
    timer.reset();
    cacher.reset();
}

void SharedBase::getStateInformation (juce::MemoryBlock& chunk)
{
    if (! initialised.load())
        return;

    try
    {
        StateChunk::write (textForHost(), chunk);
    }
    catch (...) // hosts know nothing of ours; the block stays as it was
    {}
}

std::string SharedBase::textForHost()
{
    const auto isAudioUnit = wrapperType == wrapperType_AudioUnit || wrapperType == wrapperType_AudioUnitv3;

    if (isAudioUnit && ! Threads::isOnMessageThread())
        return cachedText();

    // Shared, as a call that takes too long ends when nobody waits any more.
    const auto text = std::make_shared<std::optional<std::string>>();
    const auto isLive =
        Threads::callOnMessageThreadAndBlock (lifeline.guard ([this, text] { *text = liveText(); }));

    return isLive && text->has_value() ? std::move (**text) : cachedText();
}

/** None while a state is half loaded, or if it cannot be had: the cacher answers then. */
std::optional<std::string> SharedBase::liveText()
{
    try
    {
        PresetTask::getInstance().flush (this);

        if (! isLoading.load())
            return cacher->refresh();
    }
    catch (...)
    {}

    return {};
}

nlohmann::json SharedBase::fullDocument()
{
    auto document = createDocument();
    document[FlatParams::key] = FlatParams::get (getParameters());
    return document;
}

std::string SharedBase::cachedText()
{
    auto document = cacher->getNewest();
    document[FlatParams::key] = FlatParams::get (getParameters());
    return Json::toText (document);
}

void SharedBase::setStateInformation (const void* data, int size)
{
    if (! initialised.load())
        return;

    try
    {
        queueLoad (StateChunk::read (data, size));
    }
    catch (...) // what was read so far stands
    {}
}

void SharedBase::queueLoad (std::string_view text)
{
    const auto pending = std::make_shared<PendingLoad>();
    auto& document = pending->document;
    document = Json::parse (text);

    if (document.is_object())
        if (const auto flat = document.find (FlatParams::key);
            flat != document.end() && ! getParameters().isEmpty())
        {
            FlatParams::set (getParameters(), *flat);
            pending->flatParams = std::move (*flat);
            document.erase (flat);
        }

    if (document.empty())
        return;

    pending->waits = ! Threads::isOnMessageThread();

    cacher->expect (text.substr (0, text.find ('\0')));

    if (pending->waits)
    {
        waitedInVain.store (false);
        ++numPendingLoads;
    }

    auto& task = PresetTask::getInstance();
    task.add (this, [this, pending] { load (*pending); });

    if (! pending->waits)
        task.flush (this);
}

void SharedBase::load (PendingLoad& pending)
{
    const juce::ScopeGuard ends { [this, &pending] {
        hostIsToBeTold.store (false);
        isLoading.store (false);
        cacher->expectationMet();

        if (pending.waits)
            --numPendingLoads; // last: what is loaded has reached the audio side
    } };

    isLoading.store (true);

    const auto quietly = [] (auto&& step) {
        try
        {
            step();
        }
        catch (...) // what was read so far stands
        {}
    };

    quietly ([&] { hostStateAboutToLoad(); });
    quietly ([&] { applyDocument (std::move (pending.document)); });

    // Once more: the document's texts of the same parameters are rounded.
    if (pending.flatParams)
        quietly ([&] { FlatParams::set (getParameters(), *pending.flatParams); });

    quietly ([&] { hostStateLoaded(); });
}

void SharedBase::finishPendingLoad() noexcept
{
    if (! isLoadPending() || (waitedInVain.load() && ! Threads::isOnMessageThread()))
        return;

    try
    {
        if (! Threads::callOnMessageThreadAndBlock (
                lifeline.guard ([this] { PresetTask::getInstance().flush (this); })))
            waitedInVain.store (true);
    }
    catch (...) // no memory to ask with
    {}
}

void SharedBase::projectEdited() noexcept
{
    if (cacher != nullptr)
        cacher->markOutOfDate();

    if (! isLoading.load())
        hostIsToBeTold.store (true);
}

void SharedBase::tick()
{
    if (hostIsToBeTold.exchange (false))
        updateHostDisplay (ChangeDetails().withNonParameterStateChanged (true));
}
} // namespace Zn::Audio::Plugin
