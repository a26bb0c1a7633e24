#include "Hosts/PluginLibrary.h"
#include "Hosts/Song.h"

#include <gmock/gmock.h>

#include <malloc.h>

#include <atomic>
#include <filesystem>
#include <optional>
#include <thread>

// How instances come and go, in a process that holds many of them.

namespace Zn::Tests
{
namespace
{
/** What this process holds of the system. */
struct Holdings
{
    static std::size_t entriesOf (const char* folder)
    {
        const std::filesystem::directory_iterator entries (folder);
        return static_cast<std::size_t> (std::distance (begin (entries), end (entries)));
    }

    static std::size_t heap()
    {
        const auto info = ::mallinfo2();
        return info.uordblks + info.hblkhd;
    }

    std::size_t numThreads = entriesOf ("/proc/self/task");
    std::size_t numFiles = entriesOf ("/proc/self/fd");
    std::size_t heapBytes = heap();

    /** Whether this is no more than what there was before. Threads that have ended may still be on their way. */
    bool isBackTo (const Holdings& before, std::size_t numBytesMore) const
    {
        return numThreads <= before.numThreads && numFiles <= before.numFiles
               && heapBytes <= before.heapBytes + numBytesMore;
    }
};

std::ostream& operator<< (std::ostream& out, const Holdings& holdings)
{
    return out << holdings.numThreads << " threads, " << holdings.numFiles << " files, " << holdings.heapBytes
               << " bytes";
}

/** A plug-in of either format, of which nobody needs to know which. */
class Instance
{
public:
    explicit Instance (bool isVST3)
    {
        if (isVST3)
            vst3.emplace (VORNEL_VST3_BUNDLE, sampleRate, blockSize);
        else
            lv2.emplace (VORNEL_LV2_LIBRARY, sampleRate, blockSize);
    }

    Performance play (const Song& song)
    {
        return vst3 ? Tests::play (*vst3, song) : Tests::play (*lv2, song, Talk::changesInBars);
    }

    juce::MemoryBlock save() { return vst3 ? vst3->save() : lv2->save(); }

private:
    std::optional<VST3Host> vst3;
    std::optional<LV2Host> lv2;
};

/** Scans a library again and again, as hosts do: loads it, makes an instance, and lets go of everything. */
void expectToLeaveNothing (const std::function<void()>& scan, const char* library)
{
    constexpr auto numScans = 100, warmUp = 10;
    constexpr auto mostBytesOfAScan = 200.0;
    std::optional<Holdings> before;

    for (auto i = 0; i < numScans; ++i)
    {
        if (i == warmUp)
            before.emplace();

        scan();
        ASSERT_FALSE (isLoaded (library)) << "it is not unloaded, in scan " << i;
    }

    const Holdings after;
    EXPECT_TRUE (after.isBackTo (*before, static_cast<std::size_t> (mostBytesOfAScan * (numScans - warmUp))))
        << *before << ", then " << after;
}
} // namespace

TEST (PluginLifetime, LeavesNothingBehindWhenItsVST3IsScannedAndUnloaded)
{
    expectToLeaveNothing (
        [] {
            const VST3Library library (VORNEL_VST3_BUNDLE);
            EXPECT_EQ (library.scan(), 2) << "a processor and its controller";
        },
        "/Vornel.so");
}

TEST (PluginLifetime, LeavesNothingBehindWhenItsLV2IsScannedAndUnloaded)
{
    expectToLeaveNothing ([] { LV2Host host (VORNEL_LV2_LIBRARY, sampleRate, blockSize); },
                          VORNEL_LV2_LIBRARY);
}

TEST (PluginLifetime, AllowsFiftyInstancesThatPlayAtOnceAndGoInAnyOrder)
{
    constexpr auto numInstances = 50, numThreads = 4;
    const auto expected = Instance (true).play (oneSecond);
    ASSERT_GT (expected.onsets.size(), 5u);

    std::vector<std::unique_ptr<Instance>> instances;

    for (auto i = 0; i < numInstances; ++i)
        instances.push_back (std::make_unique<Instance> (i % 2 == 0));

    std::vector<Performance> performances (numInstances);

    {
        std::vector<std::jthread> hosts;

        for (auto thread = 0; thread < numThreads; ++thread)
            hosts.emplace_back ([&, thread] {
                for (auto i = static_cast<std::size_t> (thread); i < numInstances; i += numThreads)
                    performances[i] = instances[i]->play (oneSecond);
            });
    }

    for (const auto& performance : performances)
    {
        EXPECT_TRUE (sameOnsets (performance, expected));
        EXPECT_TRUE (sameSound (performance, expected));
    }

    juce::Random random (1);

    while (instances.size() > 1)
        instances.erase (instances.begin() + random.nextInt (static_cast<int> (instances.size())));

    EXPECT_TRUE (sameOnsets (instances.front()->play (oneSecond), expected)) << "the last one plays on";
}

TEST (PluginLifetime, OfOneInstanceDisturbsNoOtherThatPlays)
{
    const Song minute { .numBlocks = 60 * blocksPerSecond };

    const Song start { .numBlocks = 1 }; // brings the song's tempo into the state

    for (const auto isVST3 : { true, false })
    {
        Instance alone (isVST3), accompanied (isVST3);
        alone.play (start);
        accompanied.play (start);
        const auto expected = alone.play (minute);
        const auto state = accompanied.save();

        Performance performance;
        std::atomic<bool> ended { false };
        auto numOthers = 0, numOtherStates = 0;

        {
            std::jthread host ([&] {
                performance = accompanied.play (minute);
                ended = true;
            });

            for (; ! ended; ++numOthers)
            {
                Instance (numOthers % 2 == 0).play ({ .numBlocks = 4 });
                numOtherStates += accompanied.save() == state ? 0 : 1;
            }
        }

        EXPECT_GT (numOthers, 3);
        EXPECT_EQ (numOtherStates, 0);
        EXPECT_TRUE (sameOnsets (performance, expected));
        EXPECT_TRUE (sameSound (performance, expected));
    }
}

TEST (PluginLifetime, LeavesNothingBehindWhenTheLastOfManyInstancesGoes)
{
    const auto comeAndGo = [] {
        std::vector<std::jthread> hosts;

        for (auto thread = 0; thread < 4; ++thread)
            hosts.emplace_back ([thread] {
                std::vector<std::unique_ptr<Instance>> instances;

                for (auto i = 0; i < 16; ++i)
                {
                    instances.push_back (std::make_unique<Instance> (false));
                    instances.back()->play ({ .numBlocks = 2 });

                    if (i % 3 == thread % 3)
                        instances.erase (instances.begin());
                }
            });
    };

    comeAndGo();
    const Holdings before;
    comeAndGo();
    const Holdings after;
    EXPECT_TRUE (after.isBackTo (before, 100'000)) << before << ", then " << after;
}
} // namespace Zn::Tests
