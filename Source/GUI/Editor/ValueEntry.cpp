#include "GUI/Editor/ValueEntry.h"

#include "GUI/Widgets/EditorLook.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Zn::GUI
{
namespace
{
constexpr auto shakeHertz = 60;
constexpr std::array shake { 2, 4, 2, 0, -2, -4, -2, 0, 1, 2, 1, 0 }; // pixels
} // namespace

ValueEntry::ValueEntry (AssetScheme::Canvas& canvas,
                        juce::Component& controlToLieOver,
                        bool moves,
                        Asked whatIsAsked)
    : Element (canvas, "ValueEntry")
    , control (&controlToLieOver)
    , mayMove (moves)
    , asked (std::move (whatIsAsked))
{
    setTitle (controlToLieOver.getTitle());
    setSelectAllWhenFocused (true);
    setText (asked.text, false);
    selectAll();
}

bool ValueEntry::keyPressed (const juce::KeyPress& key)
{
    if (key == juce::KeyPress::escapeKey)
    {
        asked.finished (End::cancelled);
        return true;
    }

    if (key == juce::KeyPress::returnKey)
        return offer (End::kept);

    if (key == juce::KeyPress::tabKey)
        return offer (End::keptForNext);

    return TextEditor::keyPressed (key);
}

bool ValueEntry::offer (End end)
{
    if (asked.accept (getText()))
        asked.finished (end);
    else
        refuse();

    return true;
}

void ValueEntry::refuse()
{
    selectAll();

    if (mayMove)
    {
        shakeFrame = 0;
        startTimerHz (shakeHertz);
        return;
    }

    getProperties().set (EditorLook::refused, true);
    repaint();
}

void ValueEntry::timerCallback()
{
    const auto frame = static_cast<std::size_t> (shakeFrame++);
    const auto isOver = frame >= shake.size();

    setTopLeftPosition (place.getPosition().translated (isOver ? 0 : shake[frame], 0));

    if (isOver)
        stopTimer();
}

void ValueEntry::focusLost (FocusChangeType cause)
{
    TextEditor::focusLost (cause);
    asked.finished (End::cancelled);
}

void ValueEntry::schemeChanged()
{
    const auto font = getCanvas().fontOf ("FontBody");
    applyFontToAllText (font);
    setIndents (juce::roundToInt (getCanvas().pixelsOf ("MenuItemInset")), 0);
    setJustification (juce::Justification::centredLeft);

    if (control == nullptr || getParentComponent() == nullptr)
        return;

    // A tall control has its value at its foot.
    const auto over = getParentComponent()->getLocalArea (control, control->getLocalBounds());
    const auto isField = over.getHeight() <= getHeight();
    const auto width = isField ? std::max (getWidth(), over.getWidth()) : getWidth();
    const auto bounds = juce::Rectangle<int> (width, getHeight()).withCentre (over.getCentre());

    place = (isField ? bounds : bounds.withBottomY (over.getBottom() + getHeight() / 8))
                .constrainedWithin (getParentComponent()->getLocalBounds());
    setBounds (place);
}
} // namespace Zn::GUI
