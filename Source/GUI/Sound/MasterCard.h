#pragma once

#include "GUI/Sound/MasterValue.h"
#include "GUI/Sound/Meter.h"
#include "GUI/Sound/SoundCard.h"
#include "GUI/Widgets/Label.h"

namespace Zn::GUI
{
/** The output: the meter and the volume. The slider itself is not in here, since it stays when the sound is folded.
    Thread: message.
*/
class MasterCard : public SoundCard
{
public:
    explicit MasterCard (EditorContext& contextToUse);

private:
    Label title;
    Meter meter;
    MasterValue value;
};
} // namespace Zn::GUI
