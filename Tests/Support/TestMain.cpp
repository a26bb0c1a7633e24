#include <gtest/gtest.h>
#include <juce_events/juce_events.h>

#include <cstdlib>

namespace
{
/** Keeps whatever a test writes out of the user's own folders, and removes it at the end. */
class TemporaryHome
{
public:
    TemporaryHome()
    {
        home.createDirectory();

        for (const auto* name : { "HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "TMPDIR" })
            ::setenv (name, home.getFullPathName().toRawUTF8(), 1);
    }

    ~TemporaryHome() { home.deleteRecursively(); }

    TemporaryHome (const TemporaryHome&) = delete;
    TemporaryHome& operator= (const TemporaryHome&) = delete;

private:
    juce::File home = juce::File::getSpecialLocation (juce::File::tempDirectory)
                          .getChildFile ("vornel-test-" + juce::Uuid().toString());
};
} // namespace

int main (int argc, char** argv)
{
    const TemporaryHome home;
    ::testing::InitGoogleTest (&argc, argv);

    const juce::ScopedJuceInitialiser_GUI juceIsRunning;
    return RUN_ALL_TESTS();
}
