#include "Fuzz/Environment.h"

#include "Foundation/Singleton.h"
#include "Support/TemporaryHome.h"

#include <juce_events/juce_events.h>

namespace Zn::Fuzz
{
namespace
{
/** In this order, as the folders are asked for when they are first used. */
struct Environment
{
    Tests::TemporaryHome home;
    juce::ScopedJuceInitialiser_GUI juceIsRunning;
    Singleton::UserToken singletons;
};
} // namespace

void startJuce()
{
    static const Environment environment;
}
} // namespace Zn::Fuzz
