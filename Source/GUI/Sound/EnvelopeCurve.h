#pragma once

#include "GUI/Sound/EnvelopeShape.h"
#include "GUI/Sound/Picture.h"

namespace Zn::GUI
{
/** The envelope of a note. Its handles are the attack, the decay with the sustain, the sustain, the release.
    Thread: message.
*/
class EnvelopeCurve : public Picture
{
public:
    EnvelopeCurve (EditorContext& contextToUse, std::string element);

private:
    bool takeInputs (bool anyway) override;
    void paintPicture (juce::Graphics& g) override;
    juce::String describe() const override;
    std::vector<ParameterHandle> parametersOf (std::size_t handle) const override;
    std::pair<juce::String, juce::String> readoutOf (std::size_t handle) const override;
    void dragBegins (std::size_t handle) override;
    void moveHandle (std::size_t handle, juce::Point<float> place) override;

    const ParameterHandle attack, decay, sustain, release;
    EnvelopeTimes inputs;
    EnvelopeShape shape;
    EnvelopeShape heldShape; // the end is dragged along the scale that it had: it may be at the edge
    juce::Path line, under;
    juce::FillType fill;
};
} // namespace Zn::GUI
