#pragma once

#include "Parameters/ParamKinds.h"
#include "Plugin/Bases/Processor.h"
#include "Plugin/Bases/StateChunk.h"
#include "Presets/Base.h"

#include "Support/MessageLoop.h"

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <string>
#include <thread>

namespace Zn::Audio::Plugin
{
/** A small plug-in: three parameters, of which the documents round one, and something drawn. */
struct ToyState : Presets::Base
{
    struct Params : ParamList
    {
        FloatParam cutoff { *this, "Cutoff", { 0.0f, 10.0f }, 5.0f };
        IntParam voices { *this, "Voices", { 0, 4 }, 1 };
        BoolParam enable { *this, "Enable", false };

        void forwardTo (HostParamList& host)
        {
            host.forward ("Cutoff", cutoff);
            host.forward ("Voices", voices);
            host.forward ("Enable", enable);
        }
    };

    void reflectMembers (Reflector& r) override
    {
        if (duringReflect)
            duringReflect();

        r.addChild ("Params", params);
        r.add ("pattern", pattern);
        r.add ("bars", bars); // throws at a text that is no number
    }

    Params params;
    std::string pattern = "default";
    int bars = 1;
    std::function<void()> duringReflect;
};

class ToyProcessor : public Processor<ToyState>
{
public:
    ToyProcessor() { startHostState(); }
    ~ToyProcessor() override { stopHostState(); }

    const std::string& pattern() { return getState().pattern; }

    std::string saved()
    {
        juce::MemoryBlock chunk;
        getStateInformation (chunk);
        return std::string (StateChunk::read (chunk.getData(), static_cast<int> (chunk.getSize())).data());
    }

    nlohmann::json document() { return nlohmann::json::parse (saved()); }

    void restore (const std::string& text)
    {
        juce::MemoryBlock chunk;
        StateChunk::write (text, chunk);
        setStateInformation (chunk.getData(), static_cast<int> (chunk.getSize()));
    }

    void renderBlock()
    {
        juce::AudioBuffer<float> audio (2, 16);
        juce::MidiBuffer midi;
        processBlock (audio, midi);
    }

    std::string lastHeard; // what sounded in the last block, "silence" while a load is pending

protected:
    void prepare (double, int) override {}
    void release() override {}
    void processBypassed (juce::AudioBuffer<float>&, juce::MidiBuffer&) noexcept override {}
    void keepForNextBlock (juce::MidiBuffer&) noexcept override {}

    void process (juce::AudioBuffer<float>&, juce::MidiBuffer&) noexcept override
    {
        lastHeard = isLoadPending() ? "silence" : pattern();
    }
};

/** Runs a host's call on a thread of its own while the message thread waits for it and serves nothing. */
inline void whileMessageThreadWaits (const std::function<void()>& call)
{
    std::thread (call).join();
}

/** Runs a host's call on a thread of its own while the message thread goes on. */
inline void besideMessageThread (const std::function<void()>& call)
{
    std::atomic<bool> ended { false };
    std::jthread worker ([&] {
        call();
        ended = true;
    });

    EXPECT_TRUE (Zn::Tests::runMessageLoopUntil ([&] { return ended.load(); }));
}
} // namespace Zn::Audio::Plugin
