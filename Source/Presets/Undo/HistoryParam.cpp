#include "Presets/Undo/HistoryParam.h"

#include "Presets/Undo/Interface.h"

namespace Zn::Undo
{
juce::String HistoryParam::getTextForNormalised (float normalised) const
{
    return normalised > 0.5f ? "On" : "Off";
}

void HistoryParam::setFromText (const juce::String& text)
{
    setNormalisedNotifying (text == getTextForNormalised (1.0f) ? 1.0f : 0.0f);
}

void HistoryParam::setNormalisedNotifying (float normalised)
{
    if (normalised > 0.5f)
        perform();
}

bool UndoParam::isPossible() const
{
    return undo.canUndo();
}

void UndoParam::perform()
{
    undo.undo();
}

bool RedoParam::isPossible() const
{
    return undo.canRedo();
}

void RedoParam::perform()
{
    undo.redo();
}
} // namespace Zn::Undo
