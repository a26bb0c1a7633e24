#pragma once

#include "Foundation/CallbackFunc.h"
#include "GUI/Browser/BrowserList.h"
#include "GUI/Widgets/WheelSteps.h"

#include <functional>
#include <vector>

namespace Zn::GUI
{
/** A wavetable by the names that the editor shows. */
struct NamedTable
{
    juce::String name, category;
};

/** All there are, in their order. */
using NamedTables = std::vector<NamedTable>;

/** Wavetables, a line each with one cycle and the name. A line that is marked by hand is heard; it can be dragged away.
    Thread: message.
*/
class WavetableList : public BrowserList
{
public:
    /** What other parts do about it. Tables are told by their places among all. */
    struct Callbacks
    {
        std::function<void (int table)> marked;
        CallbackFunc taken;
        std::function<bool (int table, juce::Point<int> onScreen)>
            dragged; // whether a drop would do anything
        std::function<void (int table, juce::Point<int> onScreen)> dropped;
        CallbackFunc notDropped; // after all
    };

    /** What is chosen is what is heard. */
    static constexpr BrowserColours colours { .accent = "Sound", .wash = "SoundDeep" };

    /** The names outlive it. */
    WavetableList (AssetScheme::Canvas& canvas, const NamedTables& namesToShow, Callbacks callbacksToUse);
    ~WavetableList() override;

    /** The hint stands there when nothing is listed. */
    void show (std::vector<int> newTables, const juce::String& newHint);

    /** Colours the line of the table that is heard, and marks it without telling of it. */
    void setCurrent (int table);

    /** Marks the line there, if there is one. Whether there is. */
    bool markAt (juce::Point<int> onScreen);

    void activate() override { callbacks.taken(); }

    int getNumRows() override { return static_cast<int> (tables.size()); }
    juce::String getNameForRow (int row) override;
    void schemeChanged() override;

private:
    class Row;

    /** How its lines are laid out at one size of the editor. */
    struct Style
    {
        juce::Rectangle<float> row, box, picture, text;
        juce::Font name, currentName;
        float stroke = 0.0f;
    };

    std::unique_ptr<BrowserRow> makeRow() override;
    void selectedRowsChanged (int row) override;
    void markCurrent();
    void turn (const juce::MouseWheelDetails& wheel);
    int tableAt (int row) const; // -1 behind the end
    const NamedTable& named (int table) const { return names[static_cast<std::size_t> (table)]; }

    const NamedTables& names;
    const Callbacks callbacks;
    std::vector<int> tables;
    int current = -1;
    bool marksItself = false;
    WheelSteps wheelSteps;
    Style style;
};
} // namespace Zn::GUI
