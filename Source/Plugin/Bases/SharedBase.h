#pragma once

#include "Foundation/Events/TimerCallback.h"
#include "Foundation/Singleton.h"
#include "Foundation/Threads/AsyncCallback.h"
#include "Parameters/HostParamList.h"
#include "Plugin/Bases/PresetCacher.h"
#include "Plugin/Bases/ProcessorBase.h"

#include <nlohmann/json.hpp>

#include <atomic>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace Zn::Audio::Plugin
{
/** Keeps what a plug-in shares with its host: the list of parameters, what the host's project holds of us, and the
    singletons of the process for as long as the plug-in lives.

    A project holds the document of the state, with the exact values of the host's parameters, in a StateChunk. Hosts
    ask for it and bring it on any thread, also while their message thread waits for that thread. The state
    itself is touched on the message thread only: what comes on another waits in PresetTask, what cannot be had
    from there within a second comes from the PresetCacher. Nothing is thrown at the host.
*/
class SharedBase : public ProcessorBase
{
    const Singleton::UserToken singletons; // first: whatever comes after may use them to its end

public:
    explicit SharedBase (Role role = Role::instrument) : ProcessorBase (role) {}
    ~SharedBase() override;

    /** Thread: any. */
    void getStateInformation (juce::MemoryBlock& chunk) final;

    /** Sets the host's parameters at once. The rest is loaded before this returns where the caller stands in for the
        message thread; otherwise soon. Thread: any.
    */
    void setStateInformation (const void* data, int size) final;

    /** A state has come that is not loaded yet: the one that is here must not sound. Thread: any. */
    bool isLoadPending() const noexcept { return numPendingLoads.load() > 0; }

    /** Waits until no load is pending, once for each and a second at most. Thread: any. */
    void finishPendingLoad() noexcept;

    /** What the project holds has changed, and not by a parameter of the host: by drawing a pattern, say. Tells the
        host a moment later, unless this comes while a state is loaded from the project itself. Thread: message.
    */
    void projectEdited() noexcept;

protected:
    /** Lets the host save and load, from the end of the constructor of the whole processor. Thread: message. */
    void startHostState();

    /** The first step of the destructor of the whole processor: nothing touches the state behind it. Thread: any. */
    void stopHostState() noexcept;

    virtual nlohmann::json createDocument() = 0;
    virtual void applyDocument (nlohmann::json document) = 0;

    /** A state from the project comes. Thread: message. */
    virtual void hostStateAboutToLoad() {}

    /** It is complete, with its parameters; also when it broke off. Thread: message. */
    virtual void hostStateLoaded() {}

    ManagedParameters managedParameters;
    HostParamList hostParameters { managedParameters };

private:
    struct PendingLoad;

    std::string textForHost();
    std::optional<std::string> liveText();
    nlohmann::json fullDocument();
    std::string cachedText();

    void queueLoad (std::string_view text);
    void load (PendingLoad& pending);
    void tick();

    std::atomic<bool> initialised { false };
    std::atomic<int> numPendingLoads { 0 };     // queued by a thread that could not load
    std::atomic<bool> waitedInVain { false };   // for the load that is pending
    std::atomic<bool> isLoading { false };      // written: message
    std::atomic<bool> hostIsToBeTold { false }; // written: message

    Threads::Lifeline lifeline;
    std::unique_ptr<PresetCacher> cacher;
    std::optional<Events::TimerCallback> timer;
};
} // namespace Zn::Audio::Plugin
