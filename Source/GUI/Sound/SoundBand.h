#pragma once

#include "GUI/Framework/AssetScheme/Element.h"
#include "GUI/Widgets/EditorContext.h"

namespace Zn::GUI
{
/** The synth's controls and pictures of what is heard. Thread: message. */
class SoundBand : public AssetScheme::Element<>
{
public:
    explicit SoundBand (EditorContext& contextToUse);

private:
    EditorContext& context;
};
} // namespace Zn::GUI
