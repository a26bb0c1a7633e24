#include "GUI/Sound/MasterCard.h"

#include "GUI/Sound/CardHeading.h"

namespace Zn::GUI
{
MasterCard::MasterCard (EditorContext& contextToUse)
    : SoundCard (contextToUse, "MasterModule", "Master")
    , title (contextToUse, "MasterTitle", "Master", cardHeading (juce::Justification::centred))
    , meter (contextToUse, "Meter")
    , value (contextToUse, "MasterValue")
{
    add ({ &title, &meter, &value });
}
} // namespace Zn::GUI
