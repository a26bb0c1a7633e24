#pragma once

#include "GUI/Support/BareEditor.h"
#include "GUI/Support/Hand.h"
#include "Parameters/CreateForwarder.h"
#include "Support/MessageLoop.h"

namespace Zn::Tests
{
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
struct ControlBench : private CountedUndo, BareEditor
{
    ControlBench() : BareEditor (static_cast<CountedUndo*> (this))
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

    using CountedUndo::steps; // of undo
};
} // namespace Zn::Tests
