#include "GUI/Editor/Page.h"

#include "Foundation/Events/SharedTimer.h"
#include "GUI/Editor/PageKeys.h"
#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Popups/UpdateNotice.h"
#include "Presets/Folders.h"
#include "Presets/Reflection/Build.h"

#include <algorithm>
#include <tuple>

namespace Zn::GUI
{
Page::Page (Audio::Plugins::Vornel::Processor& processor)
    : edits (processor.getUndo(), [&processor] { processor.finishPendingLoad(); })
    , learning (processor.getState().learnMap)
    , shownSlot (processor.getState().slotParam.getInt())
    , overlay (*this, canvas, settings, edits, polls, keysInUse)
    , context { .processor = processor,
                .canvas = canvas,
                .settings = settings,
                .edits = edits,
                .overlay = overlay,
                .learning = learning,
                .polls = polls,
                .shownSlot = shownSlot,
                .actions = actions,
                .keysInUse = keysInUse,
                .draggedOut = draggedOut }
    , timer (Events::UpdateTimer::screenInterval, [this] { polls.callListeners(); })
    , frames (this, [] { Events::SharedTimer::getInstance().frame (juce::Time::getMillisecondCounter()); })
{
    setOpaque (true);
    setWantsKeyboardFocus (true);
    setLookAndFeel (&look);
    addMouseListener (this, true);

    for (auto* band : bands)
        addAndMakeVisible (band);

    addAndMakeVisible (resizer);
    addChildComponent (learnMode);
    addAndMakeVisible (overlay);
    addChildComponent (drops.getTarget());

    if (processor.wrapperType == juce::AudioProcessor::wrapperType_Standalone)
        actions.play = [&isPlaying = context.state().playHead->isPlaying] { isPlaying = ! isPlaying; };

    if (settings.get().ownColours)
        followSettings();
    else
        AssetScheme::Base::get().resetUserColours(); // of an editor that closed before they were switched off

    if (UpdateNotice::isDue (UpdateNotice::defaultFile(), Build::version))
        overlay.openPopup (std::make_unique<UpdateNotice> (context));
}

void Page::followSettings()
{
    if (settings.get().ownColours == userColours.has_value())
        return;

    if (settings.get().ownColours)
    {
        userColours.emplace (Presets::Folders::user (AssetScheme::UserColours::fileName));
        return;
    }

    userColours.reset();
    AssetScheme::Base::get().resetUserColours();
}

void Page::tellOfFailure()
{
    overlay.showMessage ("Your settings cannot be written to "
                             + settings.getFile().getParentDirectory().getFullPathName(),
                         "Retry",
                         [this] { settings.retry(); });
}

PageActions Page::ownActions()
{
    PageActions own;
    own.undo = [this] { edits.undo(); };
    own.redo = [this] { edits.redo(); };
    own.learn = [this] { learning.setActive (! learning.isActive()); };
    own.nextBand = [this] { focusBand (1); };
    own.previousBand = [this] { focusBand (-1); };
    own.fold = [this] {
        using AssetScheme::Fold;
        canvas.setFold (canvas.getFold() == Fold::open ? Fold::folded : Fold::open);
    };
    own.openSlot = [this] (int slot) { shownSlot.set (slot); };
    own.playSlot = [this] (int slot) {
        shownSlot.set (slot);
        context.state().slotParam.setInt (slot);
    };
    own.leaveLearning = [this] {
        if (! learning.isActive())
            return false;

        if (learning.getMap().getLearning())
            learning.disarm();
        else
            learning.setActive (false);

        return true;
    };

    return own;
}

Page::~Page()
{
    timer.setActive (false);
    overlay.closeAll();
    learning.disarm(); // nobody would see what the next key is bound to
    setLookAndFeel (nullptr);
}

void Page::resized()
{
    overlay.setBounds (getLocalBounds());
}

bool Page::keyStateChanged (bool isKeyDown)
{
    keysInUse = keysInUse || isKeyDown;
    return false;
}

bool Page::keyPressed (const juce::KeyPress& key)
{
    keysInUse = true; // Esc comes from text fields, too

    if (key == juce::KeyPress::escapeKey)
        return escape();

    return actOn (key, actions, isMouseButtonDownAnywhere());
}

bool Page::escape()
{
    if (overlay.getPopup() != nullptr)
    {
        overlay.closePopup();
        return true;
    }

    const auto ends = [] (const auto& end) { return end != nullptr && end(); };
    return ends (actions.leaveLearning) || ends (actions.endSelection);
}

void Page::focusBand (int direction)
{
    if (overlay.getPopup() != nullptr || learning.isActive()) // keep the focus to themselves
        return;

    constexpr auto count = int (std::tuple_size_v<decltype (bands)>);
    const auto hasFocus = [] (const auto* band) { return band->hasKeyboardFocus (true); };
    const auto current = std::find_if (bands.begin(), bands.end(), hasFocus);
    auto index = current != bands.end() ? int (current - bands.begin()) : (direction > 0 ? -1 : count);

    for (auto tries = count; tries > 0; --tries)
    {
        index = (index + direction + count) % count;
        auto* const band = bands[static_cast<std::size_t> (index)];
        auto* const first = band->createKeyboardFocusTraverser()->getDefaultComponent (band);

        if (first != nullptr && band->isParentOf (first))
            return first->grabKeyboardFocus();
    }
}

void Page::paint (juce::Graphics& g)
{
    g.fillAll (AssetScheme::Base::get().colourOf ("Window"));
}
} // namespace Zn::GUI
