#include "Parameters/CreateForwarder.h"
#include "Sequencer/BPMParameter.h"
#include "Sequencer/Modifiers/DenumParam.h"
#include "Sequencer/Modifiers/NumParam.h"
#include "Sequencer/SwingParam.h"

#include <gtest/gtest.h>

namespace Zn::Sequencer
{
namespace
{
using Texts = std::vector<std::string>;
}

TEST (SwingParam, ReadsBackEveryPercentAndLimitsTheRest)
{
    Audio::ParamHolder<SwingParam> swing { "Swing", "Swing" };
    const auto knob = Parameters::createForwarder (swing);

    for (auto percent = -200; percent <= 200; ++percent)
    {
        knob->setFromText (juce::String (percent) + "%");
        EXPECT_EQ (swing->get(), percent);
        EXPECT_EQ (knob->getCurrentText(), juce::String (percent) + "%");
    }

    const std::vector<std::pair<const char*, int>> rows { { "1000%", 200 },
                                                          { "-1e30", -200 },
                                                          { "inf", 0 },
                                                          { "nan%", 0 },
                                                          { "-12.7 %", -13 } };

    for (const auto& [text, percent] : rows)
    {
        knob->setFromText (text);
        EXPECT_EQ (swing->get(), percent) << text;
    }
}

TEST (BPMParameter, KeepsFourDecimalsOfAText)
{
    std::atomic<float> bpm { 100.0f };
    BPMParameter tempo { bpm };

    const std::vector<std::tuple<const char*, double, const char*>> rows {
        { "120", 120.0, "120" },      { "120.5", 120.5, "120" },  { "99.99994", 99.9999, "100" },
        { "99.99996", 100.0, "100" }, { "1.00006", 1.0001, "1" }, { "998.9999", 998.9999, "999" },
        { "999", 999.0, "999" },      { "0", 1.0, "1" },          { "2000", 999.0, "999" },
        { "nan", 1.0, "1" },          { "1e400", 1.0, "1" },      { "", 1.0, "1" }
    };

    for (const auto& [text, expected, shown] : rows)
    {
        tempo.setFromText (text);
        EXPECT_EQ (bpm.load(), static_cast<float> (expected)) << text;
        EXPECT_EQ (tempo.getCurrentText(), shown) << text;
    }

    for (auto whole = 1; whole <= 999; ++whole)
    {
        tempo.setFromText (juce::String (whole));
        EXPECT_EQ (bpm.load(), static_cast<float> (whole));
        EXPECT_EQ (tempo.getCurrentText(), juce::String (whole));
    }
}

TEST (BPMParameter, HasUsualTemposInTheMiddleOfItsDial)
{
    std::atomic<float> bpm { 100.0f };
    BPMParameter tempo { bpm };

    const std::pair<double, float> rows[] { { 60.0, 0.3567239f },
                                            { 100.0, 0.4307828f },
                                            { 120.0, 0.4606633f },
                                            { 140.0, 0.4874987f } };

    for (const auto& [value, normalised] : rows)
    {
        tempo.setDouble (value);
        EXPECT_NEAR (tempo.getNormalised(), normalised, 1e-6f) << value;
    }

    tempo.setNormalisedNotifying (0.5f);
    EXPECT_NEAR (bpm.load(), 150.0f, 1e-3f);

    tempo.setNormalisedNotifying (tempo.getDefault());
    EXPECT_NEAR (bpm.load(), 100.0f, 1e-3f);

    tempo.setNormalisedNotifying (std::numeric_limits<float>::quiet_NaN());
    EXPECT_NEAR (bpm.load(), 100.0f, 1e-3f);
}

TEST (MusicalTimeParam, WritesAndTellsOnlyWhatAUserChanges)
{
    MusicalTime time { Bar { 42, 3 } };
    std::vector<Bar> heard;
    auto rebuilds = 0;
    time.setListener ([&heard] (int, Bar, Bar newBar) { heard.push_back (newBar); });

    Modifiers::NumParam num { time, [&rebuilds] { ++rebuilds; } };
    Modifiers::DenumParam denum { time, [&rebuilds] { ++rebuilds; } };

    EXPECT_EQ (num.getCurrentText(), "42") << "a file may hold it";
    EXPECT_EQ (num.getNormalised(), 1.0f);
    EXPECT_EQ (denum.getCurrentText(), "3");
    EXPECT_EQ (denum.getNormalised(), 0.0f) << "in the middle of 2 and 4 the lower";
    EXPECT_EQ (heard.size(), 0u);

    num.setInt (7);
    num.setInt (7);
    denum.setFromText ("8");
    EXPECT_EQ (heard, (std::vector<Bar> { { 7, 3 }, { 7, 8 } }));
    EXPECT_EQ (rebuilds, 2);

    num.setInt (99);
    num.setInt (0);
    EXPECT_EQ (time.getBars().list.front(), (Bar { 1, 8 }));
}

TEST (MusicalTimeParam, OfABarThatIsGoneShowsTheDefaultAndTakesNothing)
{
    MusicalTime time { Bar { 4, 4 } };
    Modifiers::NumParam num { time, [] { FAIL(); }, 3 };

    EXPECT_EQ (num.getInt(), 4);
    num.setInt (9);
    EXPECT_EQ (time, MusicalTime (Bar { 4, 4 }));
}

TEST (DenumParam, SpreadsPowersOfTwoEvenly)
{
    MusicalTime time { Bar { 4, 4 } };
    Modifiers::DenumParam denum { time, {} };
    Texts steps, menu;

    for (auto step = 0; step <= denum.getNumSteps(); ++step)
    {
        denum.setNormalisedNotifying (static_cast<float> (step) / 7.0f);
        EXPECT_FLOAT_EQ (denum.getNormalised(), static_cast<float> (step) / 7.0f);
        EXPECT_EQ (denum.getCurrentText(), denum.getTextForStep (step));
        steps.push_back (denum.getCurrentText().toStdString());
    }

    for (const auto& item : denum.getMenuChoices().subItems)
        menu.push_back (item.text.toStdString());

    EXPECT_EQ (steps, (Texts { "2", "4", "8", "16", "32", "64", "128", "256" }));
    EXPECT_EQ (menu, steps);

    denum.getMenuChoices().subItems[3].choose();
    EXPECT_EQ (time.getBars().list.front(), (Bar { 4, 16 }));
    EXPECT_FLOAT_EQ (denum.getDefault(), 1.0f / 7.0f);
}
} // namespace Zn::Sequencer
