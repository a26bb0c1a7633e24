#pragma once

#include "Foundation/CallbackFunc.h"

#include <functional>

namespace Zn::GUI
{
/** What the keys of the whole page do. Whoever can do it fills it in while the editor is made; a key whose action is
    empty goes to the host. Thread: message.
*/
struct PageActions
{
    CallbackFunc undo, redo;
    CallbackFunc save, saveAs, previousPreset, nextPreset, searchPresets;
    CallbackFunc learn, settings, help;
    CallbackFunc nextBand, previousBand;
    CallbackFunc fold;
    CallbackFunc play; // the application's own; a host has a key for it

    std::function<void (int)> playSlot; // 0..7: opens it, and it plays next
    std::function<void (int)> openSlot; // 0..7: for editing alone

    /** Esc, when nothing above the page is open: asked in turn, ends what it can end and says whether that was
        anything.
    */
    std::function<bool()> leaveLearning, endSelection;
};
} // namespace Zn::GUI
