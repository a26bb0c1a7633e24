#include "GUI/Sound/FilterCard.h"

#include "Parameters/CreateForwarder.h"

namespace Zn::GUI
{
namespace
{
auto& paramsOf (EditorContext& context)
{
    return context.state().params.sound.synth.filter;
}
} // namespace

FilterCard::FilterCard (EditorContext& contextToUse)
    : SoundCard (contextToUse, "Filter", "Filter")
    , enable (contextToUse,
              "FilterEnable",
              Parameters::createForwarder (paramsOf (contextToUse).enable),
              { .look = Toggle::Look::power, .accent = "Sound" })
    , curve (contextToUse, "FilterCurve")
    , cutoff (contextToUse, "FilterCutoff", Parameters::createForwarder (paramsOf (contextToUse).cutoff))
    , resonance (
          contextToUse, "FilterResonance", Parameters::createForwarder (paramsOf (contextToUse).resonance))
    , keyTracking (contextToUse,
                   "FilterKeyTracking",
                   Parameters::createForwarder (paramsOf (contextToUse).keyTracking))
{
    setPower (enable, [&enabled = paramsOf (contextToUse).enable] { return enabled.get(); });
    add ({ &enable, &curve, &cutoff, &resonance, &keyTracking });
}

void FilterCard::schemeChanged()
{
    SoundCard::schemeChanged();
    fitLabels ({ &cutoff, &resonance, &keyTracking });
}
} // namespace Zn::GUI
