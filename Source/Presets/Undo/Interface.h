#pragma once

#include "Foundation/Events/HasBroadcaster.h"
#include "Parameters/Parameter.h"

#include <juce_core/juce_core.h>

#include <memory>

namespace Zn::Undo
{
/** What a widget tells of its edits, and what the undo and redo buttons ask.

    An edit begins, marks that it has changed something, and ends; edits may nest, and the outermost is one step for
    the user. Tells its listeners whenever what can be undone or redone may have become another. As it stands it
    remembers nothing, for widgets without a plug-in behind them. Thread: message.
*/
class Interface : public Events::HasBroadcaster
{
public:
    virtual ~Interface() = default;

    virtual void begin() {}
    virtual void markChanged() {}
    virtual void end (const juce::String& name) { juce::ignoreUnused (name); }

    virtual void undo() {}
    virtual void redo() {}

    /** What a button is bound to: it reads 1.0 while there is something to undo, and setting it does that. Null when
        nothing is remembered. Must not outlive this object.
    */
    virtual std::unique_ptr<Parameters::Parameter> createUndoParam() { return nullptr; }
    virtual std::unique_ptr<Parameters::Parameter> createRedoParam() { return nullptr; }

    virtual bool canUndo() const { return false; }
    virtual bool canRedo() const { return false; }
};
} // namespace Zn::Undo
