#pragma once

#include "GUI/Pattern/RollTools.h"
#include "GUI/Pattern/RollView.h"
#include "GUI/Pattern/RowNames.h"

namespace Zn::GUI
{
/** What the parts of one piano roll share. The area that holds them makes it first. Thread: message. */
struct RollContext
{
    EditorContext& editor;
    PatternEditor& pattern;
    RollTools& tools;
    RollView& view;
    Events::Value<RowNames>& rowNames;
};
} // namespace Zn::GUI
