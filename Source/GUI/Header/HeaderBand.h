#pragma once

#include "GUI/Framework/AssetScheme/Element.h"
#include "GUI/Widgets/EditorContext.h"

namespace Zn::GUI
{
/** Presets, undo, learn, help and settings, along the top. Thread: message. */
class HeaderBand : public AssetScheme::Element<>
{
public:
    explicit HeaderBand (EditorContext& contextToUse);

private:
    EditorContext& context;
};
} // namespace Zn::GUI
