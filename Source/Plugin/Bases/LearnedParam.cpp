#include "Plugin/Bases/LearnedParam.h"

namespace Zn::Audio::Plugin
{
LearnedParam::LearnedParam (std::unique_ptr<Parameters::Parameter> parameterToMove)
    : parameter (std::move (parameterToMove))
{}

void LearnedParam::set (float normalised) noexcept
{
    parameter->setRawNormalised (normalised);
    lastSet.store (normalised);
    isNew.store (true);
}

void LearnedParam::tellListeners()
{
    // Telling sets the value too. A message that comes meanwhile may be overwritten by it, and is set again on the
    // next tick, as its flag stands then.
    if (isNew.exchange (false))
        parameter->setNormalisedNotifying (lastSet.load());
}
} // namespace Zn::Audio::Plugin
