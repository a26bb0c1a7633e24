#pragma once

#include "GUI/Framework/AssetScheme/Element.h"
#include "GUI/Widgets/EditorContext.h"

namespace Zn::GUI
{
/** The piano roll with all that belongs to it: pitch map, ruler and lane. Thread: message. */
class PatternArea : public AssetScheme::Element<>
{
public:
    explicit PatternArea (EditorContext& contextToUse);

private:
    EditorContext& context;
};
} // namespace Zn::GUI
