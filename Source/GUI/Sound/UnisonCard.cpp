#include "GUI/Sound/UnisonCard.h"

#include "GUI/Sound/CardHeading.h"
#include "Parameters/CreateForwarder.h"

namespace Zn::GUI
{
UnisonCard::UnisonCard (EditorContext& contextToUse)
    : SoundCard (contextToUse, "UnisonModule", "Unison")
    , title (contextToUse, "UnisonTitle", "Unison", cardHeading())
    , voices (contextToUse, "Unison", Parameters::createForwarder (contextToUse.state().params.sound.unison))
    , amount (contextToUse,
              "UnisonAmount",
              Parameters::createForwarder (contextToUse.state().params.sound.unisonAmount))
{
    add ({ &title, &voices, &amount });
}

void UnisonCard::Voices::focus()
{
    if (! isShowing())
        return;

    grabKeyboardFocus();
    ring.keyPressed();
}

void UnisonCard::schemeChanged()
{
    SoundCard::schemeChanged();
    fitLabels ({ &voices, &amount });
}
} // namespace Zn::GUI
