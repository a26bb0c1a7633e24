#pragma once

#include "GUI/Pattern/RollTools.h"

#include <algorithm>

namespace Zn::Tests
{
/** A mouse over a roll of 960 by 1536 pixels, without a component. */
class Pen
{
public:
    Pen (GUI::PatternEditor& editorToUse, GUI::RollTools& toolsToUse)
        : editor (editorToUse), tools (toolsToUse)
    {}

    /** The middle of a column, the whole pattern being 16 wide, in a row. */
    static GUI::RollPoint cell (double column, int row) { return { (column + 0.5) / 16.0, row + 0.5 }; }

    void press (GUI::RollPoint at, int newModifiers = 0, int numClicks = 1)
    {
        pressed = at;
        modifiers = newModifiers;
        clicks = numClicks;
        tools.hover (pointer (at));
        tools.down (pointer (at));
    }

    void moveTo (GUI::RollPoint at) { tools.drag (pointer (last = at)); }
    void release() { tools.up (pointer (last)); }

    void drag (GUI::RollPoint from, GUI::RollPoint to, int newModifiers = 0)
    {
        press (from, newModifiers);
        moveTo (to);
        release();
    }

    void click (GUI::RollPoint at, int newModifiers = 0, int numClicks = 1)
    {
        press (at, newModifiers, numClicks);
        last = at;
        release();
    }

    /** With the primary button, unless the modifiers name another. */
    GUI::RollPointer pointer (GUI::RollPoint at) const
    {
        const auto buttons = modifiers & juce::ModifierKeys::allMouseButtonModifiers;
        GUI::RollPointer result {
            .at = at,
            .moved = { static_cast<float> ((at.time - pressed.time) * width),
                       static_cast<float> ((pressed.row - at.row) * rowHeight) },
            .modifiers =
                juce::ModifierKeys (modifiers | (buttons == 0 ? juce::ModifierKeys::leftButtonModifier : 0)),
            .numClicks = clicks
        };
        hit (result);
        return result;
    }

    static constexpr auto width = 960.0, rowHeight = 12.0; // pixels

private:
    void hit (GUI::RollPointer& pointer) const
    {
        const auto& drawing = editor.getDrawing();

        for (auto i = 0; i < drawing.numNotes(); ++i)
        {
            const auto& time = drawing.note (i).time;
            const auto at = pointer.at.time;

            if (drawing.note (i).event.noteNum != static_cast<int> (std::floor (pointer.at.row))
                || at < time.start || at >= time.end())
                continue;

            pointer.note = i;
            pointer.isAtEnd = time.end() - at < std::min (0.25 * time.length, 12.0 / width);
        }
    }

    GUI::PatternEditor& editor;
    GUI::RollTools& tools;
    GUI::RollPoint pressed, last;
    int modifiers = 0, clicks = 1;
};
} // namespace Zn::Tests
