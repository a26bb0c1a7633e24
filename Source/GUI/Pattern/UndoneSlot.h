#pragma once

#include "Foundation/Events/Listener.h"
#include "GUI/Pattern/Drawing.h"
#include "GUI/Widgets/EditorContext.h"

#include <vector>

namespace Zn::GUI
{
/** Opens the slot that undo or redo has changed, unless what they have changed is in view. Thread: message. */
class UndoneSlot
{
public:
    explicit UndoneSlot (EditorContext& contextToUse);

private:
    std::vector<Drawing> drawings() const;
    void openChanged();

    EditorContext& context;
    std::vector<Drawing> before; // of all slots
    Events::Listener departure, arrival;
};
} // namespace Zn::GUI
