#pragma once

#include "GUI/Sound/Picture.h"

namespace Zn::GUI
{
/** One cycle of an oscillator's table and, fainter, its unison voice. Dragged up or down it takes the table before or
    after. Thread: message.
*/
class WavePicture : public Picture
{
public:
    WavePicture (EditorContext& contextToUse, std::string element, ParameterHandle tableToShow);

private:
    struct Inputs
    {
        int table = -1;
        int numVoices = 1;
        float spread = 0.0f;

        bool operator== (const Inputs&) const = default;
    };

    bool takeInputs (bool anyway) override;
    void paintPicture (juce::Graphics& g) override;
    juce::String describe() const override;
    std::vector<ParameterHandle> parametersOf (std::size_t) const override { return { table }; }
    std::pair<juce::String, juce::String> readoutOf (std::size_t) const override;
    void dragBegins (std::size_t) override { startTable = table->getInt(); }
    void moveHandle (std::size_t handle, juce::Point<float> place) override;

    const ParameterHandle table;
    Inputs inputs;
    int startTable = 0;
    juce::Path line, under, unisonLine;
};
} // namespace Zn::GUI
