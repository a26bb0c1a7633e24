#pragma once

#include "Foundation/Singleton.h"
#include "GUI/Widgets/EditorContext.h"
#include "Presets/Reflection/Saver.h"
#include "Support/ScratchFolder.h"

#include <stdexcept>
#include <string>
#include <vector>

namespace Zn::Tests
{
/** Writes down what comes up, and shows nothing. */
struct SilentOverlay : GUI::Overlay
{
    void openPopup (std::unique_ptr<juce::Component>) override {}
    void closePopup() override {}
    juce::Component* getPopup() const noexcept override { return nullptr; }
    void showMenu (const Parameters::MenuItems::Item&, juce::Component*) override {}

    void
    showMenu (const juce::PopupMenu& newMenu, juce::Component*, std::function<void (int)> newChosen) override
    {
        menu = newMenu;
        chosen = std::move (newChosen);
    }

    void showReadout (const juce::String&, const juce::String&, juce::Point<int>) override {}
    void hideReadout() override {}

    void showMessage (const juce::String& text, const juce::String&, CallbackFunc) override
    {
        message = text;
    }

    void showUndo (const juce::String& done) override { message = done; }
    bool isEnteringValue() const noexcept override { return false; }

    void enterValue (juce::Component&,
                     const juce::String&,
                     std::function<bool (const juce::String&)> newAccept,
                     CallbackFunc) override
    {
        accept = std::move (newAccept);
    }

    /** Chooses the line with a text, in sub-menus too; throws when there is none that can be chosen. */
    void choose (const juce::String& text) const
    {
        for (juce::PopupMenu::MenuItemIterator lines (menu, true); lines.next();)
            if (lines.getItem().text == text && lines.getItem().isEnabled && lines.getItem().itemID > 0)
                return chosen (lines.getItem().itemID);

        throw std::runtime_error (("The menu has no " + text).toStdString());
    }

    juce::PopupMenu menu;
    std::function<void (int)> chosen;
    juce::String message;
    std::function<bool (const juce::String&)> accept;
};

/** A plug-in, and what an open editor gives to its parts, without any of them. */
struct BareEditor
{
    Sequencer::PatternSlot& slot (std::size_t index = 0) { return getState().patterns.getSlots()[index]; }
    Audio::Plugins::Vornel::State& getState() { return processor.getState(); }

    /** The document of a slot, to compare. */
    std::string document (std::size_t index = 0)
    {
        return Json::save (slot (index), ReflectorContext::forUndo()).dump();
    }

    /** Changes a slot the way a load does. */
    void set (std::vector<Sequencer::TimedNote> notes, std::size_t index = 0)
    {
        const Sequencer::PatternController::Edit edit (getState().patterns);
        slot (index).pattern.steps = std::move (notes);
    }

    Singleton::UserToken singletonsStay;
    Test::ScratchFolder folder;
    Audio::Plugins::Vornel::Processor processor { Audio::Plugins::Vornel::StartUp::empty };
    juce::Component root;
    GUI::AssetScheme::Canvas canvas { root };
    GUI::UserSettings settings { folder.file ("settings.json") };
    GUI::Edits edits { processor.getUndo(), [this] { processor.finishPendingLoad(); } };
    SilentOverlay overlay;
    GUI::Learning learning { processor.getState().learnMap };
    Events::Broadcaster polls;
    Events::Value<int> shownSlot;
    GUI::PageActions actions;
    GUI::EditorContext context { .processor = processor,
                                 .canvas = canvas,
                                 .settings = settings,
                                 .edits = edits,
                                 .overlay = overlay,
                                 .learning = learning,
                                 .polls = polls,
                                 .shownSlot = shownSlot,
                                 .actions = actions };
};
} // namespace Zn::Tests
