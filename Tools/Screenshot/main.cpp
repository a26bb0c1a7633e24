#include "Foundation/Singleton.h"
#include "GUI/Editor/Page.h"

#include <juce_gui_basics/juce_gui_basics.h>

#include <functional>
#include <iostream>

namespace juce
{
bool dispatchNextMessageOnSystemQueue (bool returnIfNoPendingMessages); // what JUCE's own loops call
}

namespace
{
using namespace Zn;
using Audio::Plugins::Vornel::Processor;

constexpr auto usage = R"(Usage: vornel-screenshot FILE.png [OPTIONS]

  --width=PIXELS   of the editor; 1100 unless told
  --preset=FILE    a pattern preset to load
  --hold=NOTES     keys that are held, such as 45,52,60
  --bpm=TEMPO      of the internal clock; 100 unless told
  --play=SECONDS   plays so long before the picture is taken
  --slot=1..8      the slot that is open
  --fold           folds the sound away
  --brush=0..4     pencil, cursor, velocity, -, chance
  --click=A,B,...  clicks parts of the editor by their names, one after the other
  --menu=NAME      clicks a part with the right button
)";

struct Player
{
    explicit Player (Processor& processorToPlay) : processor (processorToPlay)
    {
        processor.setPlayConfigDetails (2, 2, rate, blockSize);
        processor.prepareToPlay (rate, blockSize);
    }

    void run (double seconds)
    {
        for (auto blocks = int (seconds * rate / blockSize); blocks > 0; --blocks)
        {
            processor.processBlock (audio, midi);
            midi.clear();
        }
    }

    static constexpr auto rate = 48000.0;
    static constexpr auto blockSize = 480;

    Processor& processor;
    juce::AudioBuffer<float> audio { 2, blockSize };
    juce::MidiBuffer midi;
};

void serveMessages (int milliseconds)
{
    const auto end = juce::Time::getMillisecondCounter() + juce::uint32 (milliseconds);

    while (juce::Time::getMillisecondCounter() < end)
        if (! juce::dispatchNextMessageOnSystemQueue (true))
            juce::Thread::sleep (1);
}

juce::Component* find (juce::Component& root, const juce::String& name)
{
    if (root.getComponentID() == name)
        return &root;

    for (auto* child : root.getChildren())
        if (auto* found = find (*child, name))
            return found;

    return nullptr;
}

void click (juce::Component& page, const juce::String& name, juce::ModifierKeys modifiers)
{
    auto* target = find (page, name);

    if (target == nullptr)
    {
        std::cerr << "The editor has no " << name << "\n";
        return;
    }

    const auto centre = target->getLocalBounds().toFloat().getCentre();
    const auto now = juce::Time::getCurrentTime();
    const juce::MouseEvent event (juce::Desktop::getInstance().getMainMouseSource(),
                                  centre,
                                  modifiers,
                                  0.0f,
                                  0.0f,
                                  0.0f,
                                  0.0f,
                                  0.0f,
                                  target,
                                  target,
                                  now,
                                  centre,
                                  now,
                                  1,
                                  false);
    target->mouseEnter (event);
    target->mouseDown (event);
    target->mouseUp (event);
}

bool write (const juce::Image& image, const juce::File& file)
{
    file.deleteFile();
    juce::FileOutputStream stream (file);
    return stream.openedOk() && juce::PNGImageFormat().writeImageToStream (image, stream);
}

int run (const juce::ArgumentList& arguments)
{
    if (arguments.size() == 0 || arguments[0].isOption())
    {
        std::cerr << usage;
        return 2;
    }

    const auto option = [&] (const char* name) { return arguments.getValueForOption (name); };

    Processor processor;
    auto& state = processor.getState();

    if (arguments.containsOption ("--preset")
        && state.load (arguments.getFileForOption ("--preset")).is_null())
    {
        std::cerr << "Cannot load the preset\n";
        return 1;
    }

    const auto [defaultWidth, defaultHeight] = GUI::Page::defaultSize();
    const auto width = arguments.containsOption ("--width") ? option ("--width").getIntValue() : defaultWidth;

    GUI::Page page { processor };
    page.setSize (width, juce::roundToInt (double (width) * defaultHeight / defaultWidth));
    page.setVisible (true);

    if (juce::SystemStats::getEnvironmentVariable ("DISPLAY", {})
            .isNotEmpty()) // focus and menus need a window
        page.addToDesktop (juce::ComponentPeer::windowIsTemporary);

    if (arguments.containsOption ("--fold"))
        page.getContext().canvas.setFold (GUI::AssetScheme::Fold::folded);

    if (arguments.containsOption ("--slot"))
        state.slotParam.setInt (option ("--slot").getIntValue() - 1);

    if (arguments.containsOption ("--brush"))
        state.brushParam.setInt (option ("--brush").getIntValue());

    Player player { processor };

    for (const auto& note : juce::StringArray::fromTokens (option ("--hold"), ",", {}))
        player.midi.addEvent (juce::MidiMessage::noteOn (1, note.getIntValue(), 0.8f), 0);

    if (arguments.containsOption ("--bpm"))
        state.bpm.setDouble (option ("--bpm").getDoubleValue());

    state.playHead->isPlaying = arguments.containsOption ("--play");
    player.run (juce::jmax (0.1, option ("--play").getDoubleValue()));

    constexpr auto milliseconds = 300; // for all timers to come round
    serveMessages (milliseconds);

    for (const auto& name : juce::StringArray::fromTokens (option ("--click"), ",", {}))
        click (page, name, juce::ModifierKeys::leftButtonModifier);

    if (arguments.containsOption ("--menu"))
        click (page, option ("--menu"), juce::ModifierKeys::rightButtonModifier);

    page.createComponentSnapshot (page.getLocalBounds()); // what is drawn may ask for more to be read
    serveMessages (milliseconds);

    if (write (page.createComponentSnapshot (page.getLocalBounds()), arguments[0].resolveAsFile()))
        return 0;

    std::cerr << "Cannot write the picture\n";
    return 1;
}
} // namespace

int main (int argc, char** argv)
{
    const juce::ScopedJuceInitialiser_GUI juceIsRunning;
    const Singleton::UserToken singletonsStay;
    return run (juce::ArgumentList (argc, argv));
}
