#include "GUI/Arp/SlotBank.h"

#include "GUI/Arp/SlotMenu.h"
#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Widgets/ValueKeys.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Zn::GUI
{
namespace
{
constexpr auto pulseInterval = 50; // milliseconds
constexpr auto flashMilliseconds = 100u;
constexpr auto dragThreshold = 6; // pixels
} // namespace

SlotBank::SlotBank (EditorContext& contextToUse)
    : Element (contextToUse.canvas, "SlotBank")
    , context (contextToUse)
    , lastHeard (contextToUse.state().liveSlots->heard.load())
    , announced (lastHeard)
    , polls (contextToUse.polls, [this] { poll(); })
    , patterns (contextToUse.state().patterns.getEditorBroadcaster(),
                [this] {
                    for (auto& tile : tiles)
                        tile->patternChanged();
                })
    , undone (contextToUse.edits.travelled,
              [this] { lastHeard = context.state().liveSlots->heard.load(); }) // what has changed is opened
    , pulses (pulseInterval, [this] { pulse(); })
{
    pulses.setActive (false);
    setInterceptsMouseClicks (false, true);
    setTitle ("Patterns");

    SlotTile::Owner& owner = *this;

    for (auto slot = 0; auto& tile : tiles)
    {
        tile = std::make_unique<SlotTile> (context, owner, slot++);
        addAndMakeVisible (*tile);
    }

    context.actions.playSlot = [this] (int slot) { play (slot); };
    context.actions.openSlot = [this] (int slot) { open (slot); };

    moveFocus (context.shownSlot.get(), 0);
    showStates();
}

void SlotBank::paintEdges (juce::Graphics& g) const
{
    const juce::Graphics::ScopedSaveState saved (g);
    g.setOrigin (getPosition());

    for (const auto& tile : tiles)
        tile->paintEdge (g);
}

void SlotBank::tilePressed (SlotTile& tile, const juce::MouseEvent& event)
{
    dragged.reset();
    moveFocus (tile.getIndex(), 0);

    if (tile.isShowing())
        tile.grabKeyboardFocus();

    if (event.mods.isPopupMenu())
        showMenu (tile);
    else
        dragged = Drag { .from = tile.getIndex() };
}

void SlotBank::tileDragged (SlotTile& tile, const juce::MouseEvent& event)
{
    if (! dragged || dragged->hasLeft || event.getDistanceFromDragStart() < dragThreshold)
        return;

    const auto inBank = event.getEventRelativeTo (this).getPosition();
    const auto& root = context.canvas.getRoot();

    if (! root.getLocalBounds().contains (root.getLocalPoint (this, inBank)))
    {
        dragged->over.reset();
        dragged->hasLeft = true;
        slotExport.drag (dragged->from, tile);
    }
    else
    {
        const auto isUnder = [&] (const auto& other) { return other->getBounds().contains (inBank); };
        const auto under = std::find_if (tiles.begin(), tiles.end(), isUnder);
        const auto isOther = under != tiles.end() && under->get() != &tile;
        dragged->over = isOther ? std::optional ((*under)->getIndex()) : std::nullopt;
    }

    tile.setMouseCursor (pointerOver (inBank));
    showStates();
}

juce::MouseCursor SlotBank::pointerOver (juce::Point<int> inBank)
{
    const auto* const own = tiles[static_cast<std::size_t> (dragged->from)].get();

    if (dragged->over || dragged->hasLeft || own->getBounds().contains (inBank))
        return juce::MouseCursor::DraggingHandCursor;

    return noEntry.get();
}

void SlotBank::tileReleased (SlotTile& tile, const juce::MouseEvent& event)
{
    const auto ended = std::exchange (dragged, std::nullopt);
    tile.setMouseCursor (juce::MouseCursor::PointingHandCursor);

    if (! ended || ended->hasLeft)
        return;

    if (ended->over)
        drop (ended->from, *ended->over, event.mods.isAltDown());
    else if (event.getDistanceFromDragStart() >= dragThreshold)
        return showStates();
    else if (event.mods.isAltDown())
        open (tile.getIndex());
    else
        play (tile.getIndex());

    showStates();
}

bool SlotBank::tileKeyPressed (SlotTile& tile, const juce::KeyPress& key)
{
    const auto slot = tile.getIndex();
    const auto code = key.getKeyCode();
    const auto digit = code - '1';

    if (code == juce::KeyPress::escapeKey && dragged)
    {
        dragged.reset();
        tile.setMouseCursor (juce::MouseCursor::PointingHandCursor);
        showStates();
        return true;
    }

    if (ValueKey::of (key).wish == ValueKey::Wish::menu)
        return showMenu (tile), true;

    if (key.getModifiers().isCtrlDown() || key.getModifiers().isShiftDown())
        return false;

    if (key == juce::KeyPress::leftKey || key == juce::KeyPress::upKey)
        moveFocus (slot, -1);
    else if (key == juce::KeyPress::rightKey || key == juce::KeyPress::downKey)
        moveFocus (slot, 1);
    else if (const auto isDigit = juce::isPositiveAndBelow (digit, Sequencer::numSlots);
             ! isDigit && code != juce::KeyPress::returnKey)
        return false;
    else if (key.getModifiers().isAltDown())
        open (isDigit ? digit : slot);
    else
        play (isDigit ? digit : slot);

    return true;
}

void SlotBank::tileChosen (SlotTile& tile)
{
    play (tile.getIndex());
}

/** At the next moment of change. Asking for the one that plays takes back what was asked for. */
void SlotBank::play (int slot)
{
    open (slot);
    context.processor.finishPendingLoad();
    context.state().slotParam.setInt (slot);
    showStates();
}

void SlotBank::open (int slot)
{
    context.edits.finish();
    context.shownSlot.set (slot);
    showStates();
}

void SlotBank::drop (int from, int onto, bool swaps)
{
    if (swaps)
        slotEdits.swap (from, onto);
    else if (slotEdits.copyTo (from, onto))
        context.overlay.showUndo ("Pattern copied to slot " + juce::String (onto + 1));
}

void SlotBank::showMenu (SlotTile& tile)
{
    const SlotMenuTools tools { .owner = *this,
                                .edits = slotEdits,
                                .files = slotExport,
                                .learning = context.learning };
    context.overlay.showMenu (slotMenu (tools, tile.getIndex(), tile.getPreview().isEmpty()), &tile);
}

void SlotBank::moveFocus (int from, int step)
{
    const auto next = juce::jlimit (0, Sequencer::numSlots - 1, from + step);

    for (auto& tile : tiles)
        tile->setWantsKeyboardFocus (tile->getIndex() == next);

    if (step != 0 && isShowing())
        tiles[static_cast<std::size_t> (next)]->grabKeyboardFocus();
}

void SlotBank::poll()
{
    const auto heard = context.state().liveSlots->heard.load();
    followPlayingSlot (heard);
    showStates();

    if (std::exchange (announced, heard) != heard)
        context.overlay.announce (tiles[static_cast<std::size_t> (heard)]->describe());
}

/** Opens a pattern when it begins to play; what is opened meanwhile stays open until then. */
void SlotBank::followPlayingSlot (int heard)
{
    if (juce::ModifierKeys::getCurrentModifiers().isAnyMouseButtonDown() || context.overlay.isEnteringValue()
        || context.overlay.isMenuOpen())
        return; // whatever is dragged, typed or chosen belongs to the slot that is open

    if (std::exchange (lastHeard, heard) != heard && context.settings.get().followsPlayingSlot)
        context.shownSlot.set (heard);
}

void SlotBank::showStates()
{
    const auto heard = context.state().liveSlots->heard.load();
    const auto wanted = context.state().slotParam.getInt();
    const auto shown = context.shownSlot.get();

    for (auto& tile : tiles)
    {
        const auto slot = tile->getIndex();
        const auto plays = slot == heard;
        const auto before = tile->getLook();
        const SlotTile::Look look { .plays = plays,
                                    .isShown = slot == shown,
                                    .isPending = slot == wanted && ! plays,
                                    .takesDrop = dragged && dragged->over == slot,
                                    .flashes = takeFlash (slot, plays) };

        tile->setProgress (plays ? progressOf (slot) : 0.0);
        tile->setLook (look);

        if (before.isShown != look.isShown || before.takesDrop != look.takesDrop)
            if (auto* band = getParentComponent())
                band->repaint (tile->edgeBounds() + getPosition());
    }

    pulses.setActive (wanted != heard && ! context.settings.get().reducedMotion);
}

/** Whether the tile shows that its pattern has just begun anew. */
bool SlotBank::takeFlash (int slot, bool isHeard)
{
    const auto index = static_cast<std::size_t> (slot);
    const auto& pattern = context.state().patterns.getSlots()[index].pattern;
    const auto position = pattern.getEmitter().getPosition()->position.load();
    const auto lastPosition = std::exchange (lastPositions[index], position);
    const auto now = juce::Time::getMillisecondCounter();

    if (position >= 0.0 && (lastPosition < 0.0 || position < lastPosition))
        flashEnds[index] = now + flashMilliseconds;

    return isHeard && now < flashEnds[index] && ! context.settings.get().reducedMotion;
}

double SlotBank::progressOf (int slot) const
{
    const auto& pattern = context.state().patterns.getSlots()[static_cast<std::size_t> (slot)];
    const auto position = pattern.pattern.getEmitter().getPosition()->position.load();
    const auto length = pattern.length();
    return position > 0.0 && length > 0.0 ? position / length : 0.0;
}

void SlotBank::pulse()
{
    const auto seconds = double (juce::Time::getMillisecondCounter()) * 0.001;
    const auto breath = double (AssetScheme::Base::get().constantOf ("PendingPulseSeconds"));
    const auto phase = std::fmod (seconds, breath) / breath;

    for (auto& tile : tiles)
        if (tile->getLook().isPending)
            tile->setPulse (
                static_cast<float> (0.5 + 0.5 * std::cos (juce::MathConstants<double>::twoPi * phase)));
}
} // namespace Zn::GUI
