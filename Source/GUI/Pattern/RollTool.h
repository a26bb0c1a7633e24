#pragma once

#include "GUI/Pattern/RollPointer.h"

namespace Zn::GUI
{
/** What one brush does with the pointer. A press is followed by any number of drags and one release; small movements of a
    click are no drags. When the edit is cancelled the tool hears nothing more of it. Thread: message.
*/
class RollTool
{
public:
    virtual ~RollTool() = default;

    virtual void down (const RollPointer& pointer) = 0;
    virtual void drag (const RollPointer& pointer) = 0;
    virtual void up (const RollPointer& pointer) = 0;

    /** Comes after the release of the second press, unless the pointer has moved. */
    virtual void doubleClick (const RollPointer&) {}

    virtual RollCursor cursorAt (const RollPointer& pointer) const = 0;
    virtual RollReadout getReadout() const { return {}; }

    /** Whether a drag beyond an edge scrolls. */
    virtual bool scrolls() const { return true; }
};
} // namespace Zn::GUI
