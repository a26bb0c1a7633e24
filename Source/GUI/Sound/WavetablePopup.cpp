#include "GUI/Sound/WavetablePopup.h"

#include "GUI/Browser/SearchWords.h"
#include "Synth/WavetableSynth/SampleList.h"
#include "Synth/WavetableSynth/TableNames.h"

#include <algorithm>
#include <utility>

namespace Zn::GUI
{
namespace
{
NamedTables allTables()
{
    using namespace Audio::WavetableSynth;
    NamedTables tables;

    for (const auto& name : SampleList::get().getNames())
        tables.push_back ({ .name = shortNameOf (name), .category = categoryOf (name) });

    return tables;
}
} // namespace

WavetablePopup::WavetablePopup (EditorContext& contextToUse,
                                std::string cardElement,
                                std::shared_ptr<Parameters::Parameter> tableToChoose,
                                const juce::String& titleOfTable,
                                Callbacks callbacksToUse)
    : BrowserPopup (contextToUse, "Wavetable", titleOfTable, WavetableList::colours)
    , card (std::move (cardElement))
    , parameter (std::move (tableToChoose))
    , stepName (titleOfTable)
    , callbacks (std::move (callbacksToUse))
    , tables (allTables())
    , list (context.canvas,
            tables,
            { .marked = [this] (int table) { hear (table); },
              .taken = [this] { take(); },
              .dragged = [this] (int table, auto onScreen) { return drag (table, onScreen); },
              .dropped = [this] (int table, auto onScreen) { drop (table, onScreen); },
              .notDropped = [this] { endDrag(); } })
    , departure (context.edits.aboutToTravel, [this] { edit.reset(); }) // what is heard is a step by then
    , pollListener (context.polls, [this] { poll(); })
{
    addAndMakeVisible (list);
    search.setTitle ("Search wavetables");
    search.setPlaceholder ("Search " + juce::String (tables.size()) + " tables");

    list.setCurrent (parameter->getInt());
    showGroups();
    showFound();
}

WavetablePopup::~WavetablePopup()
{
    endDrag();
}

/** Above the card, which shows what is chosen; the editor may have got another size. */
void WavetablePopup::schemeChanged()
{
    BrowserPopup::schemeChanged();

    const auto gap = juce::roundToInt (context.canvas.pixelsOf ("CaptionGap"));
    const auto place = context.canvas.boundsOf (card).expanded (0, gap);

    if (std::exchange (cardPlace, place) != place)
        placeBeside (place);
}

void WavetablePopup::showGroups()
{
    std::vector<BrowserGroups::Line> lines { { .text = "All", .endsBlock = true } };
    const SearchWords wanted (getWords());

    for (const auto& table : tables)
    {
        auto line = std::ranges::find (lines, table.category, &BrowserGroups::Line::id);

        if (line == lines.end())
            line = lines.insert (line, { .id = table.category, .text = table.category });

        const auto isFound = wanted.areIn (table.name, table.category) ? 1 : 0;
        line->count += isFound;
        lines.front().count += isFound;
    }

    groups.show (std::move (lines));
}

void WavetablePopup::showFound()
{
    const SearchWords wanted (getWords());
    const auto& group = groups.getChosen();
    std::vector<int> found;

    for (auto index = 0; const auto& table : tables)
    {
        if ((group.isEmpty() || group == table.category) && wanted.areIn (table.name, table.category))
            found.push_back (index);

        ++index;
    }

    list.show (std::move (found), "Nothing has these words.");
}

void WavetablePopup::hear (int table)
{
    if (table == parameter->getInt())
        return list.setCurrent (table);

    if (! edit)
        edit.emplace (context.edits, parameter, stepName);

    parameter->setInt (table);
    list.setCurrent (table);
}

/** Of what has been searched for without looking at any, the first. */
void WavetablePopup::take()
{
    if (list.getSelectedRow() < 0 && getWords().isNotEmpty())
        list.moveSelection (1);

    keep();
}

bool WavetablePopup::drag (int table, juce::Point<int> onScreen)
{
    isDragging = true;
    context.overlay.showReadout (stepName, tables[static_cast<std::size_t> (table)].name, onScreen);
    return callbacks.dragged (onScreen);
}

void WavetablePopup::drop (int table, juce::Point<int> onScreen)
{
    endDrag();
    edit.reset(); // what is heard is a step by itself
    callbacks.dropped (table, onScreen);
}

void WavetablePopup::endDrag()
{
    if (! std::exchange (isDragging, false))
        return;

    context.overlay.hideReadout();
    callbacks.dragged ({});
}

void WavetablePopup::keep()
{
    edit.reset();
    close();
}

void WavetablePopup::escape()
{
    if (edit)
        edit->restore();

    keep();
}

void WavetablePopup::poll()
{
    answerTyping();
    list.setCurrent (parameter->getInt());
}
} // namespace Zn::GUI
