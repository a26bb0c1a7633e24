#include "GUI/Pattern/SlotEdits.h"

#include "GUI/Pattern/Clipboard.h"
#include "GUI/Pattern/Drawing.h"
#include "GUI/Pattern/SlotVariation.h"

#include <array>
#include <initializer_list>

namespace Zn::GUI
{
namespace
{
constexpr Clipboard::Kind kind { .name = "Slot", .content = "Pattern" };

juce::String named (const char* verb, int slot)
{
    return verb + juce::String (" pattern ") + juce::String (slot + 1);
}
} // namespace

bool SlotEdits::copyTo (int from, int to)
{
    return from != to && perform (named ("Copy", from), [&] { slot (to) = slot (from); });
}

void SlotEdits::swap (int first, int second)
{
    if (first == second)
        return;

    perform ("Swap patterns", [&] {
        const auto kept = slot (first);
        slot (first) = slot (second);
        slot (second) = kept;
    });
}

void SlotEdits::clear (int slotIndex)
{
    perform (named ("Clear", slotIndex), [&] { slot (slotIndex).reset(); });
}

void SlotEdits::eraseNotes (int slotIndex)
{
    if (slot (slotIndex).pattern.steps.empty())
        return;

    perform (named ("Clear", slotIndex), [&] { slot (slotIndex).pattern.steps.clear(); });
    context.overlay.showUndo ("Pattern cleared");
}

void SlotEdits::copyToClipboard (int slotIndex) const
{
    Clipboard::copy (kind, slot (slotIndex));
}

bool SlotEdits::canPaste() const
{
    return ! Clipboard::getDocument (kind).is_null();
}

void SlotEdits::paste (int slotIndex)
{
    Sequencer::PatternSlot pasted;

    if (Clipboard::paste (kind, pasted))
        perform (named ("Paste", slotIndex), [&] { slot (slotIndex) = pasted; });
}

void SlotEdits::pasteAsVariation (int slotIndex, std::uint32_t seed)
{
    Sequencer::PatternSlot pasted;

    if (! Clipboard::paste (kind, pasted))
        return;

    varyRows (pasted.pattern.steps, seed);
    perform (named ("Vary", slotIndex), [&] { slot (slotIndex) = pasted; });
}

void SlotEdits::pasteAsVariation (int slotIndex)
{
    pasteAsVariation (slotIndex, static_cast<std::uint32_t> (juce::Random::getSystemRandom().nextInt()));
}

Sequencer::PatternSlot& SlotEdits::slot (int index) const
{
    auto& slots = context.state().patterns.getSlots();
    return slots[static_cast<std::size_t> (juce::jlimit (0, Sequencer::numSlots - 1, index))];
}

bool SlotEdits::perform (const juce::String& name, const std::function<void()>& change)
{
    auto hasChanged = false;
    context.edits.perform (name, [&] {
        auto& patterns = context.state().patterns;
        std::vector<Drawing> before;

        for (const auto& each : patterns.getSlots())
            before.push_back (Drawing::of (each));

        {
            const Sequencer::PatternController::Edit edit (patterns);
            change();
        }

        const auto playsAs = [] (const auto& drawing, const auto& now) {
            return drawing.playsAs (Drawing::of (now));
        };
        hasChanged = ! std::equal (before.begin(), before.end(), patterns.getSlots().begin(), playsAs);
        return hasChanged;
    });

    return hasChanged;
}
} // namespace Zn::GUI
