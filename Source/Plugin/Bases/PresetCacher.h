#pragma once

#include "Foundation/Events/UpdateTimer.h"
#include "Foundation/GUIToRealTime.h"

#include <juce_audio_processors/juce_audio_processors.h>
#include <nlohmann/json.hpp>

#include <atomic>
#include <functional>
#include <mutex>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Zn::Audio::Plugin
{
/** Keeps a recent document of the state, for hosts that ask for their project on a thread that may not touch the
    state, or while the message thread waits for them.

    The document is made anew on the message thread, at most twice a second, when something has changed. A state
    that is to be loaded counts from the moment it is known: until a document is made that has it, it lies over
    the one that is here.
*/
class PresetCacher : private juce::AudioProcessorListener
{
public:
    using MakeDocument = std::function<nlohmann::json()>;

    /** Holds a first document at once. Thread: message. */
    PresetCacher (juce::AudioProcessor& processorToFollow, MakeDocument makeDocumentToUse);
    ~PresetCacher() override;

    PresetCacher (const PresetCacher&) = delete;
    PresetCacher& operator= (const PresetCacher&) = delete;

    /** For changes that are no parameter's of the host. Thread: any. */
    void markOutOfDate() noexcept { outOfDate.store (true); }

    /** Makes the document now; its text. Thread: message. */
    std::string refresh();

    /** Copies the newest document. Thread: any but audio. */
    nlohmann::json getNewest();

    /** The text of a state will be loaded on the message thread. Thread: any. */
    void expect (std::string_view text);

    /** Such a text has been loaded. Thread: message. */
    void expectationMet() noexcept;

    static constexpr int intervalMilliseconds = 500;

private:
    using Ring = GUIToRealTime<nlohmann::json, 5>;

    void audioProcessorParameterChanged (juce::AudioProcessor*, int, float) override { markOutOfDate(); }
    void audioProcessorChanged (juce::AudioProcessor*, const ChangeDetails&) override { markOutOfDate(); }

    std::pair<nlohmann::json, std::vector<std::string>> copyAll();
    nlohmann::json makeNew();
    void publish (nlohmann::json document);
    void update() noexcept;

    juce::AudioProcessor& processor;
    const MakeDocument makeDocument;
    std::atomic<bool> outOfDate { false }; // set: any thread, audio too; cleared: message

    std::mutex lock; // among readers, and for what is expected
    Ring ring;
    Ring::Writer writer = ring.getWriter(); // thread: message
    Ring::Reader reader = ring.getReader(); // any, one at a time
    std::vector<std::string> expected;      // the oldest first, also those met since the newest document
    int numUnmet = 0;

    const Events::UpdateTimer timer;
};
} // namespace Zn::Audio::Plugin
