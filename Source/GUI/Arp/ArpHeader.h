#pragma once

#include "GUI/Framework/AssetScheme/Element.h"
#include "GUI/Widgets/EditorContext.h"

namespace Zn::GUI
{
/** The slots and the transport. Thread: message. */
class ArpHeader : public AssetScheme::Element<>
{
public:
    explicit ArpHeader (EditorContext& contextToUse);

private:
    EditorContext& context;
};
} // namespace Zn::GUI
