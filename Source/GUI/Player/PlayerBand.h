#pragma once

#include "GUI/Framework/AssetScheme/Element.h"
#include "GUI/Widgets/EditorContext.h"

namespace Zn::GUI
{
/** The player that takes the place of the held keys. Thread: message. */
class PlayerBand : public AssetScheme::Element<>
{
public:
    explicit PlayerBand (EditorContext& contextToUse);

private:
    EditorContext& context;
};
} // namespace Zn::GUI
