#pragma once

#include "Foundation/Singleton.h"
#include "GUI/Support/Hand.h"
#include "GUI/Widgets/EditorContext.h"
#include "Parameters/CreateForwarder.h"
#include "Support/MessageLoop.h"

namespace Zn::Tests
{
/** Remembers what would come up above an editor. */
struct RecordedOverlay : GUI::Overlay
{
    void openPopup (std::unique_ptr<juce::Component>) override {}
    void closePopup() override {}
    juce::Component* getPopup() const noexcept override { return nullptr; }
    void showMenu (const Parameters::MenuItems::Item& newMenu, juce::Component*) override
    {
        choices = newMenu;
    }
    void showMenu (const juce::PopupMenu& newMenu, juce::Component*, std::function<void (int)>) override
    {
        menu = newMenu;
    }
    void showReadout (const juce::String&, const juce::String& value, juce::Point<int>) override
    {
        readout = value;
    }
    void hideReadout() override { readout.clear(); }
    void showMessage (const juce::String&, const juce::String&, CallbackFunc) override {}
    void showUndo (const juce::String&) override {}
    bool isEnteringValue() const noexcept override { return false; }
    void enterValue (juce::Component&,
                     const juce::String& text,
                     std::function<bool (const juce::String&)> newAccept,
                     CallbackFunc) override
    {
        offered = text;
        accept = std::move (newAccept);
    }

    Parameters::MenuItems::Item choices;
    juce::PopupMenu menu;
    juce::String readout, offered;
    std::function<bool (const juce::String&)> accept; // of the text entry
};

/** Counts the steps that an undo would take back. */
struct CountedUndo : Undo::Interface
{
    void begin() override { ++depth; }
    void markChanged() override { changed = true; }
    void end (const juce::String&) override
    {
        if (--depth == 0 && std::exchange (changed, false))
            ++steps;
    }

    int depth = 0, steps = 0;
    bool changed = false;
};

/** A plug-in and an empty editor, to lay single controls on. */
struct ControlBench
{
    ControlBench()
    {
        const auto [width, height] = GUI::AssetScheme::Canvas::defaultSize();
        root.setSize (width, height);
        root.setVisible (true);
    }

    template <typename ControlType, typename... Args>
    std::unique_ptr<ControlType> make (Args&&... args)
    {
        auto control = std::make_unique<ControlType> (context, std::forward<Args> (args)...);
        root.addAndMakeVisible (*control);
        return control;
    }

    static std::shared_ptr<Parameters::Parameter> of (Audio::ParamHolderBase& holder)
    {
        return Parameters::createForwarder (holder);
    }

    auto& getParams() { return processor.getState().params; }

    Singleton::UserToken singletonsStay;
    Audio::Plugins::Vornel::Processor processor { Audio::Plugins::Vornel::StartUp::empty };
    juce::Component root;
    GUI::AssetScheme::Canvas canvas { root };
    juce::TemporaryFile settingsFile;
    GUI::UserSettings settings { settingsFile.getFile() };
    CountedUndo undo;
    GUI::Edits edits { undo, [] {} };
    RecordedOverlay overlay;
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
