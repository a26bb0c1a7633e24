#include "Foundation/Singleton.h"
#include "GUI/Editor/Page.h"
#include "GUI/Standalone/StandaloneView.h"
#include "GUI/Support/Hand.h"
#include "Plugin/Bases/StateEditor.h"

#include <juce_gui_basics/juce_gui_basics.h>

#include <iostream>
#include <memory>
#include <optional>

namespace juce
{
bool dispatchNextMessageOnSystemQueue (bool returnIfNoPendingMessages); // what JUCE's own loops call
}

namespace
{
using namespace Zn;
using Audio::Plugins::Vornel::Processor;
namespace Hand = Tests::Hand;

constexpr auto usage = R"(Usage: vornel-screenshot FILE.png [OPTIONS]

  --width=PIXELS   of the editor; 1100 unless told
  --scale=FACTOR   pixels of the picture for one of the editor; 1 unless told
  --part=A,B,...   only these parts of the editor, by their names, and what lies between them
  --standalone     the window of the program that needs no host, with its keyboard
  --preset=FILE    a pattern preset to load
  --sound=FILE     a sound preset to load after it
  --hold=NOTES     keys that are held, such as 45,52,60
  --bpm=TEMPO      of the internal clock; 100 unless told
  --play=SECONDS   plays so long before the picture is taken
  --slot=1..8      the slot that is open
  --fold           folds the sound away
  --brush=0..4     pencil, cursor, velocity, -, chance
  --learn=NOTE     eight keys from this one on switch slots, and the pedal moves the filter
  --player=FILE    turns the MIDI player on with one of its own files, or one from elsewhere by its whole path
  --drag=FILE      holds a file over the window
  --click=A,B,...  clicks parts of the editor by their names, one after the other
  --menu=NAME      clicks a part with the right button
)";

/** A host whose song plays on: with it the editor's own clock can be started and stopped. */
struct Transport : juce::AudioPlayHead
{
    juce::Optional<PositionInfo> getPosition() const override
    {
        PositionInfo position;
        position.setIsPlaying (true);
        return position;
    }
};

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

void click (juce::Component& root, const juce::String& name, juce::ModifierKeys modifiers)
{
    const juce::Component::SafePointer<juce::Component> target (Hand::findOrNull (root, name));

    if (target == nullptr)
    {
        std::cerr << "The editor has no " << name << "\n";
        return;
    }

    const auto centre = target->getLocalBounds().toFloat().getCentre();
    const auto event = Hand::mouseEvent (*target, centre, centre, modifiers);
    target->mouseEnter (event);
    target->mouseDown (event);

    if (target != nullptr) // the press may have been its end
        target->mouseUp (event);
}

/** The editor by itself, or in the program's own window. */
class View
{
public:
    View (Processor& processor, bool isStandalone)
    {
        if (! isStandalone)
        {
            bare.emplace (processor);
            return;
        }

        auto editor = std::make_unique<Audio::Plugin::StateEditor<Processor, GUI::Page>> (processor);
        pageInWindow = &editor->getPage();
        window.emplace (std::move (editor), *pageInWindow, [] {});
    }

    GUI::Page& page() { return bare ? *bare : *pageInWindow; }
    juce::Component& whole() { return bare ? static_cast<juce::Component&> (*bare) : *window; }

    void setWidth (int width)
    {
        const auto [usualWidth, usualHeight] = GUI::Page::defaultSize();
        const auto height = juce::roundToInt (double (width) * usualHeight / usualWidth);
        pageParent().setSize (width, height); // the window follows its editor
    }

    /** In the window it is the keyboard that is played, so that its keys are seen. */
    void hold (int note, juce::MidiBuffer& midi)
    {
        constexpr auto velocity = 0.8f;

        if (window)
            window->getStrip().getKeys().noteOn (1, note, velocity);
        else
            midi.addEvent (juce::MidiMessage::noteOn (1, note, velocity), 0);
    }

    /** What lies between some parts of it; all of it for none. */
    juce::Rectangle<int> areaOf (const juce::StringArray& parts)
    {
        juce::Rectangle<int> area;

        for (const auto& name : parts)
            if (auto* part = Hand::findOrNull (whole(), name))
                area = area.getUnion (whole().getLocalArea (part, part->getLocalBounds()));

        return area.isEmpty() ? whole().getLocalBounds() : area;
    }

private:
    juce::Component& pageParent()
    {
        return bare ? static_cast<juce::Component&> (*bare) : *pageInWindow->getParentComponent();
    }

    std::optional<GUI::Page> bare;
    GUI::Page* pageInWindow = nullptr;
    std::optional<GUI::StandaloneView> window;
};

/** If there is one: focus and menus need a window in front of all else. */
void showOnScreen (juce::Component& whole)
{
    whole.setVisible (true);

    if (juce::Desktop::getInstance().getDisplays().displays.isEmpty())
        return;

    whole.addToDesktop (0);
    whole.toFront (true);
}

void turnPlayerOn (Processor& processor, const juce::String& file)
{
    using Resource = Sequencer::MidiPlayer::Resource;
    const auto isPath = juce::File::isAbsolutePath (file);
    const auto type = isPath ? Resource::Type::externalFile : Resource::Type::sharedBinary;
    const auto name = isPath ? juce::File (file).getFileNameWithoutExtension() : file;

    auto& state = processor.getState();
    state.player.set ({ { type, name.toStdString(), isPath ? file.toStdString() : "" }, true, false });
    state.setPlayerActive (true);
}

bool write (const juce::Image& image, const juce::File& file)
{
    file.deleteFile();
    juce::FileOutputStream stream (file);
    return stream.openedOk() && juce::PNGImageFormat().writeImageToStream (image, stream);
}

juce::StringArray namesIn (const juce::String& list)
{
    return juce::StringArray::fromTokens (list, ",", {});
}

void learnFrom (Processor& processor, int lowestKey)
{
    auto& map = processor.getState().learnMap;
    map.bindKeySwitches (lowestKey);
    map.bind ({ Midi::Learn::Target::forParam ("Filter-Cutoff"), 64 });
}

int run (const juce::ArgumentList& arguments)
{
    if (arguments.size() == 0 || arguments[0].isOption())
    {
        std::cerr << usage;
        return 2;
    }

    const auto has = [&] (const char* name) { return arguments.containsOption (name); };
    const auto option = [&] (const char* name) { return arguments.getValueForOption (name); };
    const auto isStandalone = has ("--standalone");

    if (isStandalone)
        juce::AudioProcessor::setTypeOfNextNewPlugin (juce::AudioProcessor::wrapperType_Standalone);

    Transport transport;
    Processor processor;
    processor.setPlayHead (&transport);
    auto& state = processor.getState();
    state.playHead->internalClock = true;

    const auto canLoad = [&] (const char* name, Presets::Base& library) {
        return ! has (name) || ! library.load (arguments.getFileForOption (name)).is_null();
    };

    if (! canLoad ("--preset", state) || ! canLoad ("--sound", state.synthPreset))
    {
        std::cerr << "Cannot load the preset\n";
        return 1;
    }

    if (has ("--learn"))
        learnFrom (processor, option ("--learn").getIntValue());

    View view { processor, isStandalone };
    auto& page = view.page();
    view.setWidth (has ("--width") ? option ("--width").getIntValue() : GUI::Page::defaultSize().width);
    showOnScreen (view.whole());

    if (has ("--fold"))
        page.getContext().canvas.setFold (GUI::AssetScheme::Fold::folded);

    if (has ("--slot"))
        state.slotParam.setInt (option ("--slot").getIntValue() - 1);

    if (has ("--brush"))
        state.brushParam.setInt (option ("--brush").getIntValue());

    if (has ("--player"))
        turnPlayerOn (processor, option ("--player"));

    if (has ("--drag"))
        page.fileDragEnter ({ option ("--drag") }, 1, 1);

    Player player { processor };

    for (const auto& note : namesIn (option ("--hold")))
        view.hold (note.getIntValue(), player.midi);

    if (has ("--bpm"))
        state.bpm.setDouble (option ("--bpm").getDoubleValue());

    state.playHead->isPlaying = has ("--play");
    player.run (juce::jmax (0.1, option ("--play").getDoubleValue()));

    constexpr auto milliseconds = 300; // for all timers to come round
    serveMessages (milliseconds);

    for (const auto& name : namesIn (option ("--click")))
        click (view.whole(), name, Hand::leftButton);

    if (has ("--menu"))
        click (view.whole(), option ("--menu"), Hand::rightButton);

    const auto scale = has ("--scale") ? option ("--scale").getFloatValue() : 1.0f;
    const auto picture = [&] {
        return view.whole().createComponentSnapshot (view.areaOf (namesIn (option ("--part"))), true, scale);
    };

    picture(); // what is drawn may ask for more to be read
    serveMessages (milliseconds);

    if (write (picture(), arguments[0].resolveAsFile()))
        return 0;

    std::cerr << "Cannot write the picture\n";
    return 1;
}
} // namespace

int main (int argc, char** argv)
{
    // JUCE lets a program of its own live on when a bare X server does not know what it is asked for.
    juce::JUCEApplicationBase::createInstance = [] {
        return static_cast<juce::JUCEApplicationBase*> (nullptr);
    };

    const juce::ScopedJuceInitialiser_GUI juceIsRunning;
    const Singleton::UserToken singletonsStay;
    return run (juce::ArgumentList (argc, argv));
}
