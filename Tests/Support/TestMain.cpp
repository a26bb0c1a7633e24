#include "Support/TemporaryHome.h"

#include <gtest/gtest.h>
#include <juce_events/juce_events.h>

int main (int argc, char** argv)
{
    const Zn::Tests::TemporaryHome home;
    ::testing::InitGoogleTest (&argc, argv);

    const juce::ScopedJuceInitialiser_GUI juceIsRunning;
    return RUN_ALL_TESTS();
}
