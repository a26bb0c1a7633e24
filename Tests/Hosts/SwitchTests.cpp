#include "Hosts/Song.h"

#include <gtest/gtest.h>

// What hosts switch around the processing, and nobody hears.

namespace Zn::Tests
{
TEST (PluginSwitches, OfOfflineRenderingChangeNoSample)
{
    VST3Host vst3 (VORNEL_VST3_BUNDLE, sampleRate, blockSize),
        offlineVST3 (VORNEL_VST3_BUNDLE, sampleRate, blockSize);
    offlineVST3.getPlugin().releaseResources();
    offlineVST3.getPlugin().setNonRealtime (true);
    offlineVST3.getPlugin().prepareToPlay (sampleRate, blockSize);

    LV2Host lv2 (VORNEL_LV2_LIBRARY, sampleRate, blockSize),
        offlineLV2 (VORNEL_LV2_LIBRARY, sampleRate, blockSize);
    offlineLV2.setFreeWheeling (true);

    const auto expected = play (vst3, oneSecond);
    EXPECT_GT (expected.onsets.size(), 5u);

    for (const auto& performance : { play (offlineVST3, oneSecond),
                                     play (lv2, oneSecond, Talk::everyBlock),
                                     play (offlineLV2, oneSecond, Talk::everyBlock) })
    {
        EXPECT_TRUE (sameOnsets (performance, expected));
        EXPECT_TRUE (sameSound (performance, expected));
    }
}

TEST (PluginSwitches, OfTheInputThatNobodyHearsChangeNothing)
{
    const auto expected = [] {
        VST3Host host (VORNEL_VST3_BUNDLE, sampleRate, blockSize);
        return play (host, oneSecond);
    }();

    for (const auto isOn : { false, true })
    {
        VST3Host host (VORNEL_VST3_BUNDLE, sampleRate, blockSize);
        auto& plugin = host.getPlugin();
        plugin.releaseResources();

        if (auto* input = plugin.getBus (true, 0))
        {
            input->enable (! isOn);
            input->enable (isOn); // refused or not
        }

        plugin.prepareToPlay (sampleRate, blockSize);
        const auto performance = play (host, oneSecond);
        EXPECT_TRUE (sameOnsets (performance, expected)) << isOn;
        EXPECT_TRUE (sameSound (performance, expected)) << isOn;
    }
}
} // namespace Zn::Tests
