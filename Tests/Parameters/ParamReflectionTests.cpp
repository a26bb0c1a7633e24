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
} // namespace Zn::Audio
