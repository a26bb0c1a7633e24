#pragma once

#include "Foundation/CallbackFunc.h"
#include "Foundation/Events/Broadcaster.h"
#include "Foundation/Events/UpdateTimer.h"
#include "Presets/Undo/Transaction.h"

#include <juce_core/juce_core.h>

#include <functional>
#include <memory>
#include <optional>

namespace Zn::GUI
{
/** Turns what a hand does into steps of undo: one for each gesture, and one for wheel turns and key presses that
    follow each other quickly on the same target.

    Before anything changes it lets a project load that is still on its way come in. Thread: message.
*/
class Edits
{
public:
    /** Both outlive it. `finishPendingLoad` is called ahead of each edit. */
    Edits (Undo::Interface& undoToUse, CallbackFunc finishPendingLoadToUse);

    /** One step at once. The function says whether it has changed anything. */
    void perform (const juce::String& name, const std::function<bool()>& change);

    /** A drag: the step lasts as long as the transaction that is returned, which is told of changes by markChanged(). */
    std::unique_ptr<Undo::Transaction> begin (const juce::String& name);

    static constexpr juce::uint32 shortPause = 600; // milliseconds

    /** A turn of the wheel or a press of an arrow key: joins the last one if that was on the same target, and not longer
        ago than a pause in milliseconds. The target is only compared.
    */
    void join (const void* target,
               const juce::String& name,
               const std::function<bool()>& change,
               juce::uint32 longestPause = shortPause);

    /** Closes the step that later turns might have joined. */
    void finish();

    void undo();
    void redo();

    /** Called ahead of undo and redo, and after. */
    Events::Broadcaster aboutToTravel, travelled;

    Undo::Interface& getUndo() noexcept { return history; }

private:
    struct Joined
    {
        const void* target;
        std::unique_ptr<Undo::Transaction> transaction;
        juce::uint32 lastTime, longestPause; // milliseconds
    };

    void travel (void (Undo::Interface::*step)());
    void closeWhenOld();

    Undo::Interface& history;
    const CallbackFunc finishPendingLoad;
    std::optional<Joined> joined;
    Events::UpdateTimer timer;
};
} // namespace Zn::GUI
