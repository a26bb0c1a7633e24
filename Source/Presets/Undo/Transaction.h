#pragma once

#include "Presets/Undo/Interface.h"

#include <utility>

namespace Zn::Undo
{
/** One edit, from construction to destruction, so that no way out of a widget's callback leaves it open.

    A drag keeps one for as long as the button is down. Nothing is remembered unless markChanged was called in it, or
    in an edit that it contains. Thread: message.
*/
class Transaction
{
public:
    Transaction (Interface& undoToUse, juce::String nameToUse)
        : undo (undoToUse), name (std::move (nameToUse))
    {
        undo.begin();
    }

    ~Transaction() { undo.end (name); }

    Transaction (const Transaction&) = delete;
    Transaction& operator= (const Transaction&) = delete;

    void markChanged() { undo.markChanged(); }

private:
    Interface& undo;
    const juce::String name;
};
} // namespace Zn::Undo
