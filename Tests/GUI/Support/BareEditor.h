#pragma once

#include "Foundation/Singleton.h"
#include "GUI/Support/RecordedOverlay.h"
#include "GUI/Widgets/EditorContext.h"
#include "Presets/Reflection/Saver.h"
#include "Support/ScratchFolder.h"

#include <string>
#include <vector>

namespace Zn::Tests
{
/** A plug-in, and what an open editor gives to its parts, without any of them. */
struct BareEditor
{
    /** With the processor's own undo, unless there is another. */
    explicit BareEditor (Undo::Interface* undoToUse = nullptr)
        : undo (undoToUse != nullptr ? undoToUse : &processor.getUndo())
    {}

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
    Tests::ScratchFolder folder;
    Audio::Plugins::Vornel::Processor processor { Audio::Plugins::Vornel::StartUp::empty };
    Undo::Interface* const undo;
    juce::Component root;
    GUI::AssetScheme::Canvas canvas { root };
    GUI::UserSettings settings { folder.file ("settings.json") };
    GUI::Edits edits { *undo, [this] { processor.finishPendingLoad(); } };
    RecordedOverlay overlay;
    GUI::Learning learning { processor.getState().learnMap };
    Events::Broadcaster polls;
    Events::Value<int> shownSlot;
    GUI::PageActions actions;
    bool keysInUse = false;
    juce::File draggedOut;
    GUI::EditorContext context { .processor = processor,
                                 .canvas = canvas,
                                 .settings = settings,
                                 .edits = edits,
                                 .overlay = overlay,
                                 .learning = learning,
                                 .polls = polls,
                                 .shownSlot = shownSlot,
                                 .actions = actions,
                                 .keysInUse = keysInUse,
                                 .draggedOut = draggedOut };
};
} // namespace Zn::Tests
