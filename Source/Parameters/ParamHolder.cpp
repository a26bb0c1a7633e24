#include "Parameters/ParamHolder.h"

#include "Parameters/ReflectedText.h"
#include "Parameters/TargetValue.h"

namespace Zn::Audio
{
void ParamHolderBase::setReflected (bool inPresetFile, bool inHostChunk) noexcept
{
    inPresets = inPresetFile;
    inChunks = inHostChunk;
}

bool ParamHolderBase::isReflectedFor (const ReflectorContext& context) const noexcept
{
    return context.target == ReflectorContext::Target::hostChunk ? inChunks : inPresets;
}

void ParamHolderBase::reflect (Reflector& r)
{
    reflectAs (r, "Value");
}

void ParamHolderBase::reflectAs (Reflector& r, const juce::String& key)
{
    auto& parameter = getParameter();

    Parameters::reflectText (
        r,
        key.toStdString(),
        [&parameter] { return Parameters::currentTextOf (parameter); },
        [&parameter] (const juce::String& text) { Parameters::setFromText (parameter, text); });
}

std::unique_ptr<juce::AudioProcessorParameter> ParamHolderBase::handOver() noexcept
{
    jassert (! handedOver);
    handedOver = true;
    return std::unique_ptr<juce::AudioProcessorParameter> (&getParameter());
}
} // namespace Zn::Audio
