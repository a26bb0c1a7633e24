#include "GUI/Sound/OscillatorCopy.h"

#include "GUI/Widgets/ParameterEdit.h"
#include "Parameters/CreateForwarder.h"

namespace Zn::GUI
{
namespace
{
using Audio::WavetableSynth::OSCParams;

/** Of its own, without those it shares with the others. */
std::vector<float> valuesOf (const OSCParams& oscillator)
{
    std::vector<float> values;

    for (const auto& [key, holder] : oscillator.getParams())
        values.push_back (holder->getParameter().getValue());

    return values;
}

bool setValues (OSCParams& oscillator, const std::vector<float>& values)
{
    auto changed = false;
    auto value = values.begin();

    for (const auto& [key, holder] : oscillator.getParams())
    {
        const auto target = *value++;

        if (holder->getParameter().getValue() != target)
            changed |= changeAtOnce (*Parameters::createForwarder (*holder), [target] (auto& parameter) {
                parameter.setNormalisedNotifying (target);
            });
    }

    return changed;
}
} // namespace

bool copyOscillator (OSCParams& from, OSCParams& to)
{
    return setValues (to, valuesOf (from));
}

bool swapOscillators (OSCParams& one, OSCParams& other)
{
    const auto values = valuesOf (one);
    const auto oneChanged = setValues (one, valuesOf (other));
    const auto otherChanged = setValues (other, values);
    return oneChanged || otherChanged;
}
} // namespace Zn::GUI
