// The program that needs no host: a window with the editor and a keyboard. JUCE's holder owns the devices and the
// processor, and keeps the settings of both.

#include "Plugin/Host/HostedProcessor.h"
#include "Plugin/Host/QuitSignals.h"

#include "GUI/Standalone/StandaloneView.h"

#include <juce_audio_devices/juce_audio_devices.h>
#include <juce_audio_utils/juce_audio_utils.h>
#include <juce_gui_extra/juce_gui_extra.h>

#include <juce_audio_plugin_client/Standalone/juce_StandaloneFilterWindow.h>

#include <iostream>
#include <memory>
#include <optional>

namespace Zn::Audio
{
namespace
{
using Editor = Plugin::StateEditor<Plugins::Vornel::Processor, GUI::Page>;

/** The song that never stops: with it the internal clock is started and stopped by the editor, as in a host. */
class FreeTransport : public juce::AudioPlayHead
{
    juce::Optional<PositionInfo> getPosition() const override
    {
        PositionInfo position;
        position.setIsPlaying (true);
        return position;
    }
};

class MainWindow : public juce::DocumentWindow
{
public:
    MainWindow (const juce::String& name, juce::PropertySet* settings)
        : DocumentWindow (name, juce::Colours::black, allButtons), holder (makeHolder (settings))
    {
        auto& processor = static_cast<HostedProcessor&> (*holder->processor);
        processor.getState().playHead->internalClock = true;

        {
            // While a block runs, JUCE's player has a play head of its own there, and takes it away afterwards.
            const juce::ScopedLock betweenBlocks (processor.getCallbackLock());
            processor.setPlayHead (&transport);
        }

        setWantsKeyboardFocus (false); // the editor does
        setUsingNativeTitleBar (true);
        setContentOwned (makeView().release(), true);
        GUI::StandaloneView::limit (limits);
        setConstrainer (&limits);
        setResizable (true, false);
        place (settings);
        setVisible (true);
    }

    ~MainWindow() override
    {
        holder->savePluginState(); // however the program ends

        if (auto* settings = holder->settings.get())
            settings->setValue (placeKey, getWindowStateAsString());

        holder->stopPlaying();
        clearContentComponent();
        holder->processor->setPlayHead (nullptr);
    }

    void closeButtonPressed() override { juce::JUCEApplicationBase::getInstance()->systemRequestedQuit(); }

private:
    static constexpr auto placeKey = "window";

    static std::unique_ptr<juce::StandalonePluginHolder> makeHolder (juce::PropertySet* settings)
    {
        constexpr auto opensAllMidiInputs = true;
        const juce::Array<juce::StandalonePluginHolder::PluginInOuts> channels {
            { 0, 2 }
        }; // nothing is recorded
        return std::make_unique<juce::StandalonePluginHolder> (settings,
                                                               false,
                                                               juce::String(),
                                                               nullptr,
                                                               channels,
                                                               opensAllMidiInputs);
    }

    std::unique_ptr<GUI::StandaloneView> makeView()
    {
        std::unique_ptr<juce::AudioProcessorEditor> editor (holder->processor->createEditorIfNeeded());
        auto& page = dynamic_cast<Editor&> (*editor).getPage();
        return std::make_unique<GUI::StandaloneView> (std::move (editor), page, [this] {
            holder->showAudioSettingsDialog();
        });
    }

    void place (juce::PropertySet* settings)
    {
        if (settings == nullptr || ! restoreWindowStateFromString (settings->getValue (placeKey)))
            centreWithSize (getWidth(), getHeight());
    }

    FreeTransport transport;
    juce::ComponentBoundsConstrainer limits;
    const std::unique_ptr<juce::StandalonePluginHolder> holder;
};

class StandaloneApp : public juce::JUCEApplication
{
public:
    const juce::String getApplicationName() override { return JucePlugin_Name; }
    const juce::String getApplicationVersion() override { return JucePlugin_VersionString; }

    void initialise (const juce::String&) override
    {
        if (const auto status = answer (getCommandLineParameterArray()))
        {
            setApplicationReturnValue (*status);
            quit();
        }
        else
        {
            open();
        }
    }

    void shutdown() override
    {
        window.reset();
        properties.saveIfNeeded();
        quitSignals.reset(); // last: a second signal must not break off the saving
    }

    void systemRequestedQuit() override
    {
        // The dialogue for devices must not outlive them; it goes by itself, a moment later.
        if (! juce::ModalComponentManager::getInstance()->cancelAllModalComponents())
            return quit();

        constexpr auto milliseconds = 100;
        juce::Timer::callAfterDelay (milliseconds, [] {
            if (auto* const application = juce::JUCEApplicationBase::getInstance())
                application->systemRequestedQuit();
        });
    }

private:
    /** How the program ends where no window is to be opened. */
    std::optional<int> answer (const juce::StringArray& words)
    {
        constexpr auto noDisplay = 1, badWord = 2;

        if (words.size() == 1 && words[0] == "--help")
            std::cout << "Usage: vornel [--help | --version]\n\n"
                         "Opens the window of Vornel, an arpeggiator that you draw.\n\n"
                         "  --help     print this\n"
                         "  --version  print the version\n\n"
                         "Exit status: 0 done, 1 there is no display, 2 wrong arguments.\n";
        else if (words.size() == 1 && words[0] == "--version")
            std::cout << "vornel " << getApplicationVersion() << '\n';
        else if (! words.isEmpty())
            return refuse ("there is no '" + words.joinIntoString (" ") + "'; --help shows what there is",
                           badWord);
        else if (juce::Desktop::getInstance().getDisplays().displays.isEmpty())
            return refuse ("there is no display to open a window on", noDisplay);
        else
            return {};

        return 0;
    }

    static int refuse (const juce::String& why, int status)
    {
        std::cerr << "vornel: " << why << '\n';
        return status;
    }

    void open()
    {
        juce::PropertiesFile::Options options;
        options.applicationName = getApplicationName();
        options.folderName = juce::File::getSpecialLocation (juce::File::userApplicationDataDirectory)
                                 .getChildFile (JucePlugin_Manufacturer)
                                 .getChildFile (JucePlugin_Name)
                                 .getFullPathName();
        options.filenameSuffix = ".settings";
        properties.setStorageParameters (options);
        window = std::make_unique<MainWindow> (getApplicationName(), properties.getUserSettings());
        quitSignals.emplace();
    }

    juce::ApplicationProperties properties;
    std::unique_ptr<MainWindow> window;
    std::optional<QuitSignals> quitSignals;
};
} // namespace
} // namespace Zn::Audio

/** What JUCE's main function runs, and then deletes. */
juce::JUCEApplicationBase* juce_CreateApplication()
{
    return new Zn::Audio::StandaloneApp();
}
