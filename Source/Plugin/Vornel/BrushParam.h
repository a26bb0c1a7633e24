#pragma once

#include "Foundation/Events/Value.h"
#include "Parameters/IntLike.h"

namespace Zn::Audio::Plugins::Vornel
{
/** What the mouse does in the drawing. Its number is that of its button. */
enum class Brush
{
    pencil,
    cursor,
    velocity,
    clearAll,
    chance
};

/** The brush in hand; whoever shows it listens to the value. Not saved. */
class BrushParam : public Parameters::IntLike
{
public:
    explicit BrushParam (Events::Value<Brush>& brushToUse) : IntLike ("Brush"), brush (brushToUse) {}

    float getDefault() const override { return normalisedFrom (static_cast<int> (Brush::pencil)); }
    juce::NormalisableRange<float> getRange() const override;
    int getIntValue() const override { return static_cast<int> (brush.get()); }
    void setIntValue (int newValue) override;

private:
    Events::Value<Brush>& brush;
};
} // namespace Zn::Audio::Plugins::Vornel
