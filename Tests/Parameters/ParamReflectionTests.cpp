#include "Parameters/AtomicBool.h"
#include "Parameters/BoolRef.h"
#include "Parameters/CreateForwarder.h"
#include "Parameters/IntLike.h"
#include "Parameters/ParamKinds.h"
#include "Support/Documents.h"

#include <gtest/gtest.h>

namespace Zn::Audio
{
namespace
{
using nlohmann::json;
using Tests::load;

constexpr auto presetFile = ReflectorContext::forPresetFile();
constexpr auto hostChunk = ReflectorContext::forHostChunk();
constexpr auto undo = ReflectorContext::forUndo();

struct Filter : ParamList
{
    BoolParam enable { *this, "Enable", true };
    FloatParam cutoff { *this, "Cutoff", { 10.0f, 12000.0f }, 8000.0f };
};

struct Tree : ParamList
{
    Tree()
    {
        octave.setReflected (false, false);
        depth.setReflected (false, true);
        addChild ("Filter", filter);
    }

    ChoiceParam quantize { *this, "Quantize", { "4/4", "2/4", "1/4" }, 2 };
    IntParam octave { *this, "Octave", { -3, 3 }, 0 };
    FloatParam depth { *this, "Depth", { 0.0f, 1.0f }, 0.5f };
    VolumeParam master { *this, "Master", 3.0f, 0.0f };
    Filter filter;
};
} // namespace

TEST (ParamList, SavesTextsInGroupsAndLeavesOutWhatAFlagExcludes)
{
    Tree tree;

    const auto inPreset = json::parse (R"({ "Quantize": "1/4", "Master": "0.00 dB",
                                            "Filter": { "Enable": "On", "Cutoff": "8000.00" } })");
    auto inChunk = inPreset;
    inChunk["Depth"] = "0.50";

    EXPECT_EQ (Json::save (tree, presetFile), inPreset);
    EXPECT_EQ (Json::save (tree, hostChunk), inChunk);
    EXPECT_EQ (Json::save (tree, undo), inChunk);
}

TEST (ParamList, LoadsWhatItSavedAndKeepsWhatIsAbsentOrExcluded)
{
    Tree tree;
    tree.octave->setValueNotifyingHost (1.0f);

    const auto document = json::parse (R"({ "Quantize": "2/4", "Octave": "-2", "Depth": "0.75",
                                            "Filter": { "Enable": "Off" } })");
    load (tree, document, presetFile);

    EXPECT_EQ (tree.quantize.get(), 1);
    EXPECT_EQ (tree.octave.get(), 3) << "in no document";
    EXPECT_FLOAT_EQ (tree.depth.get(), 0.5f) << "in no preset file";
    EXPECT_FALSE (tree.filter.enable.get());
    EXPECT_FLOAT_EQ (tree.filter.cutoff.get(), 8000.0f);

    load (tree, document, hostChunk);
    EXPECT_FLOAT_EQ (tree.depth.get(), 0.75f);
}

TEST (ParamList, TakesNumbersAndBooleansForTexts)
{
    Tree tree;
    load (tree,
          json::parse (R"({ "Master": -6, "Quantize": null, "Depth": 0.25,
                            "Filter": { "Enable": false, "Cutoff": 440.5 } })"),
          hostChunk);

    EXPECT_NEAR (tree.master.get(), 0.5011872f, 1e-6f);
    EXPECT_EQ (tree.quantize.get(), 2);
    EXPECT_FLOAT_EQ (tree.depth.get(), 0.25f);
    EXPECT_FALSE (tree.filter.enable.get());
    EXPECT_FLOAT_EQ (tree.filter.cutoff.get(), 440.5f);

    load (tree, json::parse (R"({ "Filter": { "Enable": true, "Cutoff": [1] } })"), presetFile);
    EXPECT_TRUE (tree.filter.enable.get());
    EXPECT_FLOAT_EQ (tree.filter.cutoff.get(), 440.5f);
}

TEST (ParamList, AProjectAndUndoKeepDigitsThatTheTextRoundsAway)
{
    for (const auto context : { hostChunk, undo, presetFile })
    {
        Tree tree;
        tree.filter.cutoff->setValueNotifyingHost (0.123456f);
        const auto exact = tree.filter.cutoff.get();

        load (tree, Json::save (tree, context), context);

        if (context == presetFile)
            EXPECT_EQ (juce::String (tree.filter.cutoff.get(), 2), juce::String (exact, 2));
        else
            EXPECT_EQ (tree.filter.cutoff.get(), exact) << context.purpose;
    }

    Tree tree;
    tree.filter.cutoff->setValueNotifyingHost (0.123456f);
    load (tree, json::parse (R"({ "Filter": { "Cutoff": "1490.24" } })"), presetFile);
    EXPECT_EQ (tree.filter.cutoff.get(), 1490.24f) << "a file always gives the same value";
}

TEST (ParamHolder, StandsAloneAsAnObjectWithAValue)
{
    Tree tree;
    EXPECT_EQ (Json::save (tree.master, presetFile), json::parse (R"({ "Value": "0.00 dB" })"));

    load (tree.master, json::parse (R"({ "Value": "-100.00 dB" })"), presetFile);
    EXPECT_EQ (tree.master.get(), 0.0f);
}

TEST (Parameter, ReflectsItsTextAsValue)
{
    auto flag = false;
    auto number = 7;
    std::atomic<bool> shared { true };
    Tree tree;

    Parameters::BoolRef snap { flag, "Snap" };
    Parameters::IntRef<int> slot { number, "Slot", 0, 7, 0 };
    Parameters::AtomicBool sync { shared, "Sync" };
    const auto knob = Parameters::createForwarder (tree.quantize);

    for (const auto& [parameter, saved, changed] :
         std::vector<std::tuple<Parameters::Parameter*, std::string, std::string>> {
             { &snap, "Off", "On" },
             { &slot, "7", "2" },
             { &sync, "On", "Off" },
             { knob.get(), "1/4", "4/4" } })
    {
        EXPECT_EQ (Json::save (*parameter, hostChunk), (json { { "value", saved } }));
        load (*parameter, json { { "value", changed } }, hostChunk);
        EXPECT_EQ (parameter->getCurrentText().toStdString(), changed);
    }
}
} // namespace Zn::Audio
