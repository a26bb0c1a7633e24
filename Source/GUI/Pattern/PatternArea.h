#pragma once

#include "GUI/Pattern/HeldChord.h"
#include "GUI/Pattern/LaneSwitch.h"
#include "GUI/Pattern/NoteLane.h"
#include "GUI/Pattern/PianoRoll.h"
#include "GUI/Pattern/PitchMap.h"
#include "GUI/Pattern/PlayLine.h"
#include "GUI/Pattern/PlayingElsewhere.h"
#include "GUI/Pattern/RollHint.h"
#include "GUI/Pattern/RollKeys.h"
#include "GUI/Pattern/RollMenus.h"
#include "GUI/Pattern/RollScrollBar.h"
#include "GUI/Pattern/Ruler.h"
#include "GUI/Widgets/Button.h"
#include "GUI/Widgets/GroupHandler.h"

namespace Zn::GUI
{
/** The piano roll with all that belongs to it: pitch map, ruler and lane. Thread: message. */
class PatternArea : public AssetScheme::Element<>
{
public:
    explicit PatternArea (EditorContext& contextToUse);

    PatternEditor& getPattern() noexcept { return pattern; }
    RollTools& getTools() noexcept { return tools; }
    RollView& getView() noexcept { return view; }
    RollMenus& getMenus() noexcept { return menus; }

    void paint (juce::Graphics& g) override;
    void schemeChanged() override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override
    {
        return groupHandler (*this);
    }
    void mouseDown (const juce::MouseEvent& event) override;

private:
    void nameRows();
    void connect();
    bool pressKey (const juce::KeyPress& key);
    bool pressSlot (const juce::KeyPress& key);
    bool escape();
    RollKeys::View viewOfKeys();
    double pasteTime();
    const std::vector<Sequencer::TimedNote>& notesInUse() const;
    juce::Range<int> rowsInUse() const;
    void bringIntoSight();

    EditorContext& context;
    PatternEditor pattern { context };
    RollTools tools { context, pattern };
    RollView view { context.canvas };
    RollKeys keys;
    RollMenus menus { context, pattern };
    Events::Value<RowNames> rowNames;
    RollContext roll {
        .editor = context, .pattern = pattern, .tools = tools, .view = view, .rowNames = rowNames
    };

    Midi::PitchTableRing::Reader tables;
    std::int32_t tableCount = 0; // of the table that was named last
    int middleC = 3;
    bool wasPlaced = false; // with a size
    Events::Listener pollListener, slotListener, loadListener;

    HeldChord chord { roll };
    Ruler ruler { roll };
    PlayingElsewhere elsewhere { context };
    Button fit;
    PitchMap pitches { roll };
    PianoRoll drawing { roll };
    RollScrollBar scrollBar { roll };
    RollHint hint { roll };
    LaneSwitch velocity { roll, "LaneVelocity", NoteValue::velocity };
    LaneSwitch chance { roll, "LaneChance", NoteValue::chance };
    NoteLane lane { roll };
    PlayLine playLine { roll };
};
} // namespace Zn::GUI
