#include "GUI/Header/HistoryButton.h"

namespace Zn::GUI
{
HistoryButton::HistoryButton (EditorContext& contextToUse, Way wayToGo)
    : Button (contextToUse,
              wayToGo == Way::undo ? "Undo" : "Redo",
              { .icon = wayToGo == Way::undo ? "undo.svg" : "redo.svg",
                .look = Look::quiet,
                .iconSize = "IconSizeHeader" },
              [&edits = contextToUse.edits, wayToGo] { wayToGo == Way::undo ? edits.undo() : edits.redo(); })
    , way (wayToGo)
{
    setEnabledWhen ([&history = contextToUse.edits.getUndo(), wayToGo] {
        return wayToGo == Way::undo ? history.canUndo() : history.canRedo();
    });
}

TooltipText HistoryButton::getTooltipText() const
{
    auto text = Button::getTooltipText();

    const auto& history = context.processor.getUndo();

    if (! isEnabled())
        text.help = way == Way::undo ? "Nothing has been changed yet." : "Nothing has been taken back.";
    else
        text.value = way == Way::undo ? history.getCurrentName() : history.getNextName();

    return text;
}
} // namespace Zn::GUI
