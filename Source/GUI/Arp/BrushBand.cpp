#include "GUI/Arp/BrushBand.h"

#include "GUI/Framework/AssetScheme/Base.h"

#include <utility>

namespace Zn::GUI
{
namespace
{
using Audio::Plugins::Vornel::Brush;

Segments::Item tool (const char* element, const char* icon, Brush brush)
{
    return { .text = controlText (element).label,
             .icon = icon,
             .value = static_cast<int> (brush),
             .element = element };
}

/** A parameter that the state owns. */
std::shared_ptr<Parameters::Parameter> unowned (Parameters::Parameter& parameter)
{
    return { std::shared_ptr<void>(), &parameter };
}

/** As "= 4 beats". */
juce::String lengthText (double quarters)
{
    constexpr auto decimals = 3;
    auto number = juce::String (quarters, decimals);
    number = number.trimCharactersAtEnd ("0").trimCharactersAtEnd (".");
    return "= " + number + (number == "1" ? " beat" : " beats");
}
} // namespace

BrushBand::BrushBand (EditorContext& contextToUse)
    : Element (contextToUse.canvas, "BrushModule")
    , context (contextToUse)
    , tools (context,
             "BrushBank",
             unowned (context.state().brushParam),
             { .items = { tool ("BrushPencil", "pencil.svg", Brush::pencil),
                          tool ("BrushCursor", "cursor.svg", Brush::cursor),
                          tool ("BrushVelocity", "velocity.svg", Brush::velocity),
                          tool ("BrushChance", "chance.svg", Brush::chance) },
               .accent = "Pattern" })
    , clear (context,
             "ClearAll",
             { .text = controlText ("ClearAll").label, .icon = "clear.svg", .look = Button::Look::quiet },
             [this] { slotEdits.eraseNotes (context.shownSlot.get()); })
    , snap (context, "Snap", unowned (context.state().snapParam), { .icon = "snap.svg" })
    , gridLabel (context, "GridLabel", controlText ("Grid").label)
    , noteLengthLabel (context, "NoteLengthLabel", controlText ("NoteLength").label)
    , grid (context,
            "Grid",
            params.grid,
            { .hasMenu = true, .menuValues = { 4, 6, 8, 12, 16, 24, 32, 48, 64 } })
    , noteLength (context, "NoteLength", params.noteLength)
    , timeLabel (context, "TimeLabel", controlText ("TimeNum").label)
    , timeSlash (context, "TimeSlash", "/", { .justification = juce::Justification::centred })
    , patternLength (context, "PatternLength", {})
    , timeNum (context, "TimeNum", params.timeNum)
    , timeDenum (context, "TimeDenum", params.timeDenum)
    , multiply (context, "Multiply", params.multiply, { .text = juce::String() })
{
    setTitle ("Tools and grid");
    tools.setUndoable (false);

    for (auto* child : std::initializer_list<juce::Component*> { &tools,
                                                                 &clear,
                                                                 &afterTools,
                                                                 &snap,
                                                                 &gridLabel,
                                                                 &grid,
                                                                 &noteLengthLabel,
                                                                 &noteLength,
                                                                 &afterGrid,
                                                                 &timeLabel,
                                                                 &timeNum,
                                                                 &timeSlash,
                                                                 &timeDenum,
                                                                 &multiply,
                                                                 &patternLength,
                                                                 &dragMidi })
        addAndMakeVisible (child);

    poll();
}

void BrushBand::paint (juce::Graphics& g)
{
    g.fillAll (AssetScheme::Base::get().colourOf ("Band"));
}

void BrushBand::poll()
{
    const auto shown = static_cast<std::size_t> (context.shownSlot.get());
    const auto& slot = context.state().patterns.getSlots()[shown];

    showLength (slot.length());
    showGrid (slot.pattern.grid);
}

void BrushBand::showLength (double quarters)
{
    if (std::exchange (shownQuarters, quarters) != quarters)
        patternLength.setText (lengthText (quarters));
}

void BrushBand::showGrid (int numColumns)
{
    if (std::exchange (shownColumns, numColumns) != numColumns)
        multiply.setLabel (juce::String (juce::CharPointer_UTF8 ("\xc3\x97 ")) + juce::String (numColumns));
}
} // namespace Zn::GUI
