#include "TestProcessor.h"

#include "Render/Errors.h"
#include "Render/HostParameters.h"

#include <gtest/gtest.h>

using namespace Zn::Render;
using Zn::Tests::TestProcessor;

TEST (HostParameters, AreSetByWhatTheyShow)
{
    TestProcessor processor;
    const auto text = [&] (int index) {
        const auto* parameter = processor.getParameters()[index];
        return parameter->getText (parameter->getValue(), 64);
    };

    setParameter (processor, "Gain", "-12.5");
    setParameter (processor, "Shape", "1/4 Pulse");
    setParameter (processor, "On", "Off");
    EXPECT_EQ (text (0), "-12.50 dB");
    EXPECT_EQ (text (1), "1/4 Pulse");
    EXPECT_EQ (text (2), "Off");

    setParameter (processor, "Gain", "-3.00 dB");
    EXPECT_EQ (text (0), "-3.00 dB");
}

TEST (HostParameters, RefuseTextsThatAreNoneOfTheirValues)
{
    TestProcessor processor;

    const std::pair<const char*, const char*> rows[] { { "Gain", "loud" }, { "Gain", "" },
                                                       { "Gain", "1/4" },  { "Shape", "Square" },
                                                       { "Shape", "3" },   { "On", "maybe" },
                                                       { "gain", "0" },    { "Gain ", "0" } };

    for (const auto& [identifier, text] : rows)
        EXPECT_THROW (setParameter (processor, identifier, text), ArgumentError) << identifier << "=" << text;
}

TEST (HostParameters, AreListedAsATable)
{
    EXPECT_EQ (listParameters (TestProcessor()),
               "ID     Name        Value    Range\n"
               "Gain   Gain        0.00 dB  -60.00 dB to 6.00 dB\n"
               "Shape  Wave shape  Sine     Sine, 1/4 Pulse\n"
               "On     On          On       Off, On\n");
}
