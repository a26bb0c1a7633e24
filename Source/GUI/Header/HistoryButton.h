#pragma once

#include "GUI/Widgets/Button.h"

namespace Zn::GUI
{
/** One step back or forth; its tooltip tells which. Faint while there is none. Thread: message. */
class HistoryButton : public Button
{
public:
    enum class Way
    {
        undo,
        redo
    };

    HistoryButton (EditorContext& contextToUse, Way wayToGo);

    TooltipText getTooltipText() const override;

private:
    const Way way;
};
} // namespace Zn::GUI
