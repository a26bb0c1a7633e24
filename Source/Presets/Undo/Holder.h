#pragma once

#include "Presets/Undo/Interface.h"

namespace Zn::Undo
{
/** Base of an editor, through which the widgets inside it find where to tell of their edits.

    What it points to lives in the processor: undo survives closing the window. A holder of nothing gives an interface
    that remembers nothing, so that no widget needs to ask. Thread: message.
*/
class Holder
{
public:
    Holder() = default;
    explicit Holder (Interface& undoToHold) noexcept : undo (&undoToHold) {}
    virtual ~Holder() = default;

    Holder (const Holder&) = delete;
    Holder& operator= (const Holder&) = delete;

    Interface& getUndo() noexcept { return *undo; }

private:
    Interface forgetful;
    Interface* const undo = &forgetful; // not owned
};
} // namespace Zn::Undo
