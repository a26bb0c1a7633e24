#pragma once

#include "GUI/Arp/ArpHeader.h"
#include "GUI/Arp/ArpParams.h"
#include "GUI/Arp/BrushBand.h"
#include "GUI/Editor/FileDrops.h"
#include "GUI/Editor/FocusOrder.h"
#include "GUI/Editor/OverlayLayer.h"
#include "GUI/Editor/Resizer.h"
#include "GUI/Framework/AssetScheme/UserColours.h"
#include "GUI/Header/HeaderBand.h"
#include "GUI/Learn/LearnMode.h"
#include "GUI/Pattern/PatternArea.h"
#include "GUI/Player/MidiDrop.h"
#include "GUI/Player/PlayerBand.h"
#include "GUI/Presets/PresetDrop.h"
#include "GUI/Sound/SoundBand.h"
#include "GUI/Widgets/EditorLook.h"

#include <array>
#include <optional>

namespace Zn::GUI
{
/** The whole editor, one page: the pattern in the middle, above it what shapes it, below it what sounds it.

    Its size is the editor's; the scheme places everything in it. Thread: message.
*/
class Page : public juce::Component, public juce::FileDragAndDropTarget
{
public:
    explicit Page (Audio::Plugins::Vornel::Processor& processor);
    ~Page() override;

    /** Gives a window the smallest and the largest size and the proportions of the page. */
    static void limit (juce::ComponentBoundsConstrainer& constrainer)
    {
        AssetScheme::Canvas::limit (constrainer);
    }
    static Dimensions<int> defaultSize() { return AssetScheme::Canvas::defaultSize(); }

    EditorContext& getContext() noexcept { return context; }

    void paint (juce::Graphics& g) override;
    void resized() override;
    bool keyPressed (const juce::KeyPress& key) override;
    std::unique_ptr<juce::ComponentTraverser> createKeyboardFocusTraverser() override
    {
        return std::make_unique<FocusOrder> (*this);
    }

    /** Told of each key before it acts, by all but text fields; and of each click in the page after it has acted. */
    bool keyStateChanged (bool isKeyDown) override;
    void mouseDown (const juce::MouseEvent&) override { keysInUse = false; }

    bool isInterestedInFileDrag (const juce::StringArray& files) override
    {
        return drops.isInterestedIn (files);
    }
    void fileDragEnter (const juce::StringArray& files, int, int) override { drops.enter (files); }
    void fileDragExit (const juce::StringArray&) override { drops.exit(); }
    void filesDropped (const juce::StringArray& files, int, int) override { drops.drop (files); }

private:
    /** Those that need no band; a band may put its own in their place. */
    PageActions ownActions();
    void followSettings();
    void tellOfFailure();
    bool escape();
    void focusBand (int direction);

    AssetScheme::Canvas canvas { *this };
    EditorLook look { canvas };
    UserSettings settings;
    Edits edits;
    Learning learning;
    Events::Broadcaster polls;
    Events::Value<int> shownSlot;
    PageActions actions { ownActions() };
    bool keysInUse = false;
    juce::File draggedOut;
    OverlayLayer overlay;
    EditorContext context;

    HeaderBand header { context };
    ArpHeader arpHeader { context };
    ArpParams arpParams { context };
    BrushBand brushes { context };
    PatternArea pattern { context };
    SoundBand sound { context };
    PlayerBand player { context };
    const std::array<juce::Component*, 7> bands { // from the top
                                                  &header,  &arpHeader, &arpParams, &brushes,
                                                  &pattern, &sound,     &player
    };

    Resizer resizer { context };
    PresetDrop presetFiles { context };
    FileDrops drops { context, { midiDrop (player.getActions()), presetDrop (presetFiles) } };
    LearnMode learnMode { context, *this };

    std::optional<AssetScheme::UserColours> userColours;
    Events::Listener settingsListener { settings, [this] { followSettings(); } };
    Events::Listener failureListener { settings.getFailures(), [this] { tellOfFailure(); } };
    Events::UpdateTimer timer;
    juce::VBlankAttachment frames;
};
} // namespace Zn::GUI
