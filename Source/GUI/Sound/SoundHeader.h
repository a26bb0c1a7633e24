#pragma once

#include "GUI/Presets/PresetBar.h"
#include "GUI/Widgets/Button.h"
#include "GUI/Widgets/Toggle.h"

namespace Zn::GUI
{
/** The line above the synth's cards, which stays when they are folded away. Thread: message. */
class SoundHeader : public AssetScheme::Element<>
{
public:
    explicit SoundHeader (EditorContext& contextToUse);

    void schemeChanged() override;

private:
    EditorContext& context;
    Toggle enable;
    PresetBar sounds;
    Button fold;
};
} // namespace Zn::GUI
