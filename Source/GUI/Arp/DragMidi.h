#pragma once

#include "GUI/Widgets/Button.h"
#include "GUI/Widgets/SlotExport.h"

namespace Zn::GUI
{
/** The shown pattern as a MIDI file: dragged out, or saved by a click. Thread: message. */
class DragMidi : public Button
{
public:
    explicit DragMidi (EditorContext& contextToUse);

    void mouseDown (const juce::MouseEvent& event) override;
    void mouseDrag (const juce::MouseEvent& event) override;
    void mouseUp (const juce::MouseEvent& event) override;

private:
    SlotExport slotExport;
    bool isOut = false; // the press has become the drag of a file
};
} // namespace Zn::GUI
