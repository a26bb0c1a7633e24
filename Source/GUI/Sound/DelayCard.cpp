#include "GUI/Sound/DelayCard.h"

#include "GUI/Sound/CardHeading.h"
#include "Parameters/CreateForwarder.h"

namespace Zn::GUI
{
namespace
{
auto& paramsOf (EditorContext& context)
{
    return context.state().params.sound.synth.delay;
}
} // namespace

DelayCard::DelayCard (EditorContext& contextToUse)
    : SoundCard (contextToUse, "Delay", "Delay")
    , title (contextToUse, "DelayTitle", "Delay", cardHeading())
    , taps (contextToUse, "DelayCurve")
    , mode (contextToUse, "DelayMode", Parameters::createForwarder (paramsOf (contextToUse).mode))
    , time (contextToUse, "DelayTime", Parameters::createForwarder (paramsOf (contextToUse).time))
    , timeSync (contextToUse,
                "DelayTimeSync",
                Parameters::createForwarder (paramsOf (contextToUse).timeSync),
                Choice::Look::plain)
    , feedback (contextToUse, "DelayFeedback", Parameters::createForwarder (paramsOf (contextToUse).feedback))
    , mix (contextToUse, "DelayMix", Parameters::createForwarder (paramsOf (contextToUse).mix))
    , analog (contextToUse, "DelayAnalog", Parameters::createForwarder (paramsOf (contextToUse).analog))
{
    add ({ &title, &taps, &mode, &time, &timeSync, &feedback, &mix, &analog });
}

void DelayCard::schemeChanged()
{
    SoundCard::schemeChanged();
    fitLabels ({ &feedback, &mix, &analog });
}

void DelayCard::poll()
{
    SoundCard::poll();

    const auto isFree = paramsOf (context).mode.get() != 0;
    time.setVisible (isFree);
    timeSync.setVisible (! isFree);
}
} // namespace Zn::GUI
