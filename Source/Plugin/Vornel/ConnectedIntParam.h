#pragma once

#include "Parameters/IntLike.h"
#include "Parameters/ParamKinds.h"

#include <functional>

namespace Zn::Audio::Plugins::Vornel
{
/** A whole number of the state, wherever it is kept and whatever follows from a change of it.

    `set` is called only with a number inside the range that differs from the present one. What both functions refer
    to must outlive the parameter. Thread: message.
*/
class ConnectedIntParam : public Parameters::IntLike
{
public:
    struct Connection
    {
        std::function<int()> get;
        std::function<void (int)> set;
    };

    ConnectedIntParam (juce::String nameToUse,
                       IntRange rangeToUse,
                       int defaultToUse,
                       Connection connectionToUse);

    float getDefault() const override { return normalisedFrom (defaultValue); }
    juce::NormalisableRange<float> getRange() const override;
    int getIntValue() const override { return connection.get(); }
    void setIntValue (int newValue) override;

private:
    const IntRange range;
    const int defaultValue;
    const Connection connection;
};
} // namespace Zn::Audio::Plugins::Vornel
