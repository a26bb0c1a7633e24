#include "GUI/Sound/MasterValue.h"

#include "Parameters/CreateForwarder.h"

namespace Zn::GUI
{
MasterValue::MasterValue (EditorContext& contextToUse, std::string element)
    : ValueControl (contextToUse,
                    std::move (element),
                    Parameters::createForwarder (contextToUse.state().params.sound.master))
{
    setWantsKeyboardFocus (false);
    setAccessible (false);
    setMouseCursor (juce::MouseCursor::UpDownResizeCursor);
}

void MasterValue::schemeChanged()
{
    font = context.canvas.fontOf ("FontSmall");
    valueChanged();
}

void MasterValue::valueChanged()
{
    text = shownText() + " dB";
    repaint();
}

void MasterValue::pressed (const juce::MouseEvent& event)
{
    setWantsKeyboardFocus (true);

    if (isShowing())
        grabKeyboardFocus();

    ValueControl::pressed (event);
}

void MasterValue::focusLost (FocusChangeType cause)
{
    setWantsKeyboardFocus (false);
    ValueControl::focusLost (cause);
}

void MasterValue::paintControl (juce::Graphics& g)
{
    paintText (g, text, font, area(), juce::Justification::centred, colour ("Text"));
}
} // namespace Zn::GUI
