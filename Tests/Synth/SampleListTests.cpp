#include "Support/RealTimeGuard.h"
#include "Support/ScratchFolder.h"
#include "Synth/WavBytes.h"
#include "Synth/WavetableSynth/SampleList.h"
#include "Synth/WavetableSynth/SubTable.h"
#include "Synth/WavetableSynth/TableNames.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Zn::Audio::WavetableSynth
{
namespace
{
using namespace Tests;
using testing::ElementsAre;

std::vector<std::string> texts (const juce::StringArray& array)
{
    std::vector<std::string> result;

    for (const auto& text : array)
        result.push_back (text.toStdString());

    return result;
}

SampleList listOf (const std::vector<std::pair<juce::String, juce::MemoryBlock>>& files)
{
    std::vector<TableSource> sources;

    for (const auto& [fileName, bytes] : files)
        sources.push_back (tableSource (displayNameOf (fileName), bytes));

    return SampleList { std::move (sources) };
}

double rms (const Kernels::TableView& table, int channel)
{
    auto sum = 0.0;

    for (auto i = 0; i < table.numFrames; ++i)
        sum += std::pow (double (table.frames[i * table.numChannels + channel]), 2.0);

    return std::sqrt (sum / table.numFrames);
}

juce::MemoryBlock cycleBytes (int numFrames = 64)
{
    return wavBytes (cycleOf (numFrames, { sine }));
}
} // namespace

TEST (SampleList, HoldsTheProgramsTablesInTheOrderThatHostsStore)
{
    const SampleList list { factorySources() };
    const auto& names = list.getShortNames();

    ASSERT_EQ (list.size(), 70);
    EXPECT_EQ (list.getNames()[0], "Basics - ARP");
    EXPECT_EQ (list.getNames()[1], "Basics - Detuned ARP");

    const std::pair<int, const char*> rows[] {
        { 0, "ARP" },         { 12, "Fair Square" }, { 14, "Buzz" },
        { 20, "Octaves" },    { 30, "Hammond 5" },   { 42, "Hammond 17" },
        { 43, "Nasal" },      { 53, "Church" },      { 61, "Thin and Clean" },
        { 69, "Malfunction" }
    };

    for (const auto& [index, name] : rows)
        EXPECT_EQ (names[index], name);

    auto bytes = 0;

    for (auto index = 0; index < list.size(); ++index)
    {
        const auto& table = list.getTable (index);
        EXPECT_EQ (table.numFrames, 20480) << names[index];
        bytes += table.numFrames * table.numChannels * int (sizeof (float));
    }

    EXPECT_LT (bytes, 12 * 1024 * 1024);
}

TEST (SampleList, ShowsFilesUnderReadableNames)
{
    for (const auto& [file, name] : std::vector<std::pair<const char*, const char*>> {
             { "Basics - Detuned_ARP.wav", "Basics - Detuned ARP" },
             { "My_Saw.wav", "User - My Saw" },
             { "a - b - c.wav", "a - b - c" },
             { "v1.2.WAV", "User - v1.2" },
             { "Pads - .wav", "User - Pads -" },
             { "_ - lonely.wav", "User - - lonely" },
             { "x - 1234567890123456789012345678901234567890.wav", "x - 123456789012345678901234567890" },
         })
        EXPECT_EQ (displayNameOf (file), name);

    EXPECT_EQ (shortNameOf ("a - b - c"), "b - c");
}

TEST (SampleList, LeavesOutWhatPresetsCouldNotTellApartOrNobodyCanRead)
{
    const auto list = listOf ({ { "Basics - Saw.wav", cycleBytes() },
                                { "broken.wav", juce::MemoryBlock ("RIFF", 4) },
                                { "Saw.wav", cycleBytes (128) },
                                { "long.wav", wavBytes (cycleOf (65537, { sine })) },
                                { "saw.wav", cycleBytes (128) },
                                { "long.wav", cycleBytes() } });

    EXPECT_THAT (texts (list.getNames()), ElementsAre ("Basics - Saw", "User - saw", "User - long"));
    EXPECT_THAT (texts (list.getShortNames()), ElementsAre ("Saw", "saw", "long"));
    EXPECT_EQ (list.getTable (0).numFrames, 640);
    EXPECT_EQ (list.getTable (1).numFrames, 1280);
    EXPECT_EQ (list.getTable (2).frames, list.getTable (99).frames);
    EXPECT_EQ (list.getTable (0).frames, list.getTable (-1).frames);
}

TEST (SampleList, ReadsTheUsersFolderInNaturalOrder)
{
    const Zn::Tests::ScratchFolder user;
    const auto add = [&user] (const juce::String& name, const juce::MemoryBlock& bytes) {
        user.file (name).replaceWithData (bytes.getData(), bytes.getSize());
    };

    for (const auto* name : { "b10.wav", "b9.WAV", "A.wav", "a.txt", ".hidden.wav" })
        add (name, cycleBytes());

    add ("sub.wav/inside.wav", cycleBytes());
    user.file ("folder.wav").createDirectory();

    EXPECT_THAT (texts (SampleList { userSources (user.folder) }.getShortNames()),
                 ElementsAre ("A", "b9", "b10"));
    EXPECT_TRUE (userSources (user.file ("missing")).empty());

    for (auto i = 0; i < 300; ++i)
        add ("c" + juce::String (i) + ".wav", juce::MemoryBlock ("x", 1));

    EXPECT_EQ (userSources (user.folder).size(), 256u);
    EXPECT_EQ (userSources (user.folder).back().displayName, "User - c252");
}

TEST (SampleList, PutsTheUsersTablesBehindTheProgramsOwn)
{
    const auto folder = userFolder();
    EXPECT_EQ (folder.getFullPathName().fromLastOccurrenceOf ("Brenvik", true, false),
               juce::File::addTrailingSeparator ("Brenvik") + juce::File::addTrailingSeparator ("Vornel")
                   + "Wavetables");
    EXPECT_FALSE (folder.exists());

    const auto cycle = cycleBytes();
    folder.createDirectory();
    folder.getChildFile ("Mine.wav").replaceWithData (cycle.getData(), cycle.getSize());

    const auto count = static_cast<int> (factorySources().size()) + 1;
    const SampleList list;
    EXPECT_EQ (list.size(), count);
    EXPECT_EQ (list.getNames()[count - 1], "User - Mine");

    folder.deleteRecursively();
}

TEST (SampleList, HasTwoTablesWhenThereAreNoFiles)
{
    const SampleList list { std::vector<TableSource> {} };

    EXPECT_THAT (texts (list.getNames()), ElementsAre ("Basics - Sine", "Basics - Square"));

    for (const auto index : { 0, 1 })
    {
        const auto& table = list.getTable (index);
        EXPECT_EQ (table.frames[0], table.frames[table.numFrames - 1]);
        EXPECT_GT (rms (table, 0), 0.1);
    }
}

TEST (SampleList, EvensOutLoudnessBySubtraction)
{
    const auto list =
        listOf ({ { "soft.wav", wavBytes (cycleOf (64, { [] (double p) { return 0.1 * sine (p); } })) },
                  { "loud.wav", wavBytes (cycleOf (64, { sine })) },
                  { "sides.wav", wavBytes (cycleOf (64, { [] (double) { return 0.0; }, sine })) },
                  { "full.wav", wavBytes (cycleOf (64, { [] (double) { return 1.0; } })) },
                  { "over.wav", wavBytes (cycleOf (64, { [] (double) { return 50.0; } })) } });

    const auto half = std::sqrt (0.5);
    EXPECT_NEAR (rms (list.getTable (0), 0), 0.1 * half * (1.0 - 0.1 * half), 5e-4);
    EXPECT_NEAR (rms (list.getTable (1), 0), half * (1.0 - half), 5e-4);
    EXPECT_NEAR (rms (list.getTable (2), 1), half * (1.0 - half), 5e-4)
        << "the louder side sets the gain of both";
    EXPECT_NEAR (rms (list.getTable (3), 0), 0.0, 1e-6);
    EXPECT_NEAR (rms (list.getTable (4), 0), 0.0, 1e-6) << "never upside down";
}

TEST (SampleList, RepeatsTheEndsOfEachTableAroundIt)
{
    const auto list = listOf ({ { "two.wav", wavBytes (cycleOf (64, { saw (5), sine })) },
                                { "one.wav", wavBytes (cycleOf (64, { saw (5) })) } });

    for (const auto index : { 0, 1 })
    {
        const auto& table = list.getTable (index);
        const auto sample = [&table] (int frame, int channel) {
            return table.frames[frame * table.numChannels + channel];
        };

        for (auto channel = 0; channel < table.numChannels; ++channel)
        {
            EXPECT_EQ (sample (-1, channel), sample (0, channel));
            EXPECT_EQ (sample (table.numFrames, channel), sample (table.numFrames - 1, channel));
            EXPECT_EQ (sample (table.numFrames + 1, channel), sample (table.numFrames - 1, channel));
            EXPECT_EQ (sample (table.numFrames - 1, channel), sample (0, channel));
        }
    }

    EXPECT_EQ (list.getTable (1).numChannels, 1);
}

TEST (SampleList, IsOneForAllAndReadWithoutWaiting)
{
    const auto& list = SampleList::get();
    EXPECT_EQ (&list, &SampleList::get());

    const Zn::Tests::ExpectRealTimeSafe guard { "reading tables" };
    auto sum = 0;

    for (auto index = -1; index <= list.size(); ++index)
        sum += list.getTable (index).numFrames;

    EXPECT_GT (sum, 0);
}

TEST (SubTable, IsOneSineWithHardlyAStepAtItsEnd)
{
    const auto& table = SubTable::get().view();

    ASSERT_EQ (table.numChannels, 1);
    EXPECT_EQ (table.frames[0], 0.0f);
    EXPECT_NEAR (table.frames[table.numFrames / 4], 1.0f, 1e-6f);
    EXPECT_NEAR (table.frames[table.numFrames / 3],
                 std::sin (twoPi * (table.numFrames / 3) / table.numFrames),
                 1e-6);
    EXPECT_LT (std::abs (table.frames[table.numFrames - 1]), 1e-4f);
}
} // namespace Zn::Audio::WavetableSynth
