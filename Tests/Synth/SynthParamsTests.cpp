#include "Parameters/ParameterText.h"
#include "Parameters/TargetValue.h"
#include "Support/RealTimeGuard.h"
#include "Synth/WavBytes.h"
#include "Synth/WavetableSynth/Params.h"

#include <gtest/gtest.h>

#include <limits>

namespace Zn::Audio::WavetableSynth
{
namespace
{
using namespace Tests;

const SampleList& threeTables()
{
    static const SampleList list { [] {
        std::vector<TableSource> sources;

        for (const auto* name : { "Basics - ARP", "Buzzy - Triaj", "Middy - Fair Square" })
            sources.push_back (tableSource (name, wavBytes (cycleOf (64, { sine }))));

        return sources;
    }() };

    return list;
}
} // namespace

TEST (OscillatorParam, ShowsShortNamesAndKeepsItsTableWhenATextNamesNone)
{
    OSCParams params { threeTables() };
    OSCForwarder forwarder { *params.type };

    const std::vector<std::pair<const char*, int>> rows {
        { "Triaj", 1 }, { "nowhere to be found", 1 }, { "Fair Square", 2 },
        { "", 2 },      { "Buzzy - Triaj", 2 },       { "triaj", 2 },
        { " ARP ", 0 }
    };

    for (const auto& [text, index] : rows)
    {
        Parameters::setFromText (params.type.getParameter(), text);
        EXPECT_EQ (params.type->getIndex(), index) << text;
    }

    EXPECT_EQ (params.type->choices[1], "Buzzy - Triaj") << "hosts and menus know the category";
    EXPECT_EQ (Parameters::currentTextOf (params.type.getParameter()), "ARP");
    EXPECT_EQ (forwarder.getChoiceText (2), "Fair Square");
    EXPECT_EQ (forwarder.getChoiceText (3), "");
    EXPECT_EQ (forwarder.getChoiceText (-1), "");
    EXPECT_EQ (forwarder.getMenuChoices().subItems.front().text, "Fair Square");
}

TEST (DelayParams, KeepTimeWithTheSong)
{
    AnalogDelay::Params params;

    const std::pair<const char*, double> rows[] { { "1/2", 1.0 },    { "1/4D", 0.75 },  { "1/4", 0.5 },
                                                  { "1/8D", 0.375 }, { "1/8", 0.25 },   { "1/16D", 0.1875 },
                                                  { "1/16", 0.125 }, { "1/32", 0.0625 } };

    for (const auto& [name, seconds] : rows)
    {
        Parameters::setFromText (params.timeSync.getParameter(), name);
        EXPECT_DOUBLE_EQ (params.delaySeconds (120.0), seconds) << name;
    }

    for (const auto tempo : { 0.0, 0.99, -5.0, std::numeric_limits<double>::quiet_NaN(), HUGE_VAL })
        EXPECT_DOUBLE_EQ (params.delaySeconds (tempo), params.delaySeconds (100.0)) << tempo;

    Parameters::setFromText (params.mode.getParameter(), "Free");
    Parameters::setFromText (params.time.getParameter(), "0.25");
    const Zn::Tests::ExpectRealTimeSafe guard { "reading the delay's time" };
    EXPECT_DOUBLE_EQ (params.delaySeconds (120.0), 0.25);
}
} // namespace Zn::Audio::WavetableSynth
