#include "GUI/Widgets/Edits.h"

#include <juce_events/juce_events.h>

#include <utility>

namespace Zn::GUI
{
Edits::Edits (Undo::Interface& undoToUse, CallbackFunc finishPendingLoadToUse)
    : history (undoToUse)
    , finishPendingLoad (std::move (finishPendingLoadToUse))
    , timer (100, [this] { closeWhenOld(); })
{}

void Edits::perform (const juce::String& name, const std::function<bool()>& change)
{
    const auto transaction = begin (name);

    if (change())
        transaction->markChanged();
}

std::unique_ptr<Undo::Transaction> Edits::begin (const juce::String& name)
{
    finish();
    finishPendingLoad();
    return std::make_unique<Undo::Transaction> (history, name);
}

void Edits::join (const void* target,
                  const juce::String& name,
                  const std::function<bool()>& change,
                  juce::uint32 longestPause)
{
    closeWhenOld();

    if (! joined || joined->target != target)
        joined = Joined { .target = target, .transaction = begin (name), .lastTime = 0, .longestPause = 0 };

    joined->lastTime = juce::Time::getMillisecondCounter();
    joined->longestPause = longestPause;
    auto& transaction = *joined->transaction;

    if (change())
        transaction.markChanged();
}

void Edits::finish()
{
    joined.reset();
}

void Edits::undo()
{
    travel (&Undo::Interface::undo);
}

void Edits::redo()
{
    travel (&Undo::Interface::redo);
}

void Edits::travel (void (Undo::Interface::*step)())
{
    finish();
    finishPendingLoad();
    aboutToTravel.callListeners();
    (history.*step)();
    travelled.callListeners();
}

void Edits::closeWhenOld()
{
    if (joined && juce::Time::getMillisecondCounter() - joined->lastTime > joined->longestPause)
        finish();
}
} // namespace Zn::GUI
