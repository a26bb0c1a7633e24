#pragma once

#include "GUI/Framework/AssetScheme/Element.h"
#include "GUI/Widgets/EditorContext.h"

namespace Zn::GUI
{
/** Pitch, swing and range of what the pattern plays. Thread: message. */
class ArpParams : public AssetScheme::Element<>
{
public:
    explicit ArpParams (EditorContext& contextToUse);

private:
    EditorContext& context;
};
} // namespace Zn::GUI
