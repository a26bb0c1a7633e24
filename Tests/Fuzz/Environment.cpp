#include "Fuzz/Environment.h"

#include "Foundation/Singleton.h"
#include "Support/TemporaryHome.h"

#include <juce_events/juce_events.h>

#include <memory>

namespace Zn::Fuzz
{
namespace
{
struct Running
{
    juce::ScopedJuceInitialiser_GUI juce;
    Singleton::UserToken singletons;
};
} // namespace

void startJuce()
{
    static const Tests::TemporaryHome home;

    // Never stopped: libFuzzer leaves by exit(), which ends JUCE's own statics first.
    [[maybe_unused]] static const auto* const running = std::make_unique<Running>().release();
}
} // namespace Zn::Fuzz
