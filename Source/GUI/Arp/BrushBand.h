#pragma once

#include "GUI/Framework/AssetScheme/Element.h"
#include "GUI/Widgets/EditorContext.h"

namespace Zn::GUI
{
/** The tools of the roll, its grid and its time. Thread: message. */
class BrushBand : public AssetScheme::Element<>
{
public:
    explicit BrushBand (EditorContext& contextToUse);

private:
    EditorContext& context;
};
} // namespace Zn::GUI
