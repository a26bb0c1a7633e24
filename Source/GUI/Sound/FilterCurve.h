#pragma once

#include "GUI/Sound/FilterResponse.h"
#include "GUI/Sound/Picture.h"

namespace Zn::GUI
{
/** What the filter does to a voice that plays middle C. Its handle is the cutoff and the resonance. Thread: message. */
class FilterCurve : public Picture
{
public:
    FilterCurve (EditorContext& contextToUse, std::string element);

private:
    struct Inputs
    {
        float cutoffHz = 0.0f, resonance = 1.0f, keyTracking = 0.0f;
        bool isOpen = false; // at its top the cutoff switches the filter off
        double sampleRate = 44100.0;

        bool operator== (const Inputs&) const = default;
    };

    bool takeInputs (bool anyway) override;
    void paintPicture (juce::Graphics& g) override;
    juce::String describe() const override;
    std::vector<ParameterHandle> parametersOf (std::size_t) const override { return { cutoff, resonance }; }
    std::pair<juce::String, juce::String> readoutOf (std::size_t) const override;
    void moveHandle (std::size_t handle, juce::Point<float> place) override;

    Inputs readInputs() const;
    float trackedHz() const;
    float xOf (double hertz) const;
    float yOf (double decibels) const;
    void paintGrid (juce::Graphics& g);

    const ParameterHandle cutoff, resonance;
    Inputs inputs;
    FrequencyAxis axis;
    std::vector<float> decibels;
    juce::Path line, under;
    juce::FillType fill;
    juce::Font font;
};
} // namespace Zn::GUI
