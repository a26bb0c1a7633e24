#pragma once

#include "GUI/Sound/EchoTaps.h"
#include "GUI/Sound/Picture.h"

namespace Zn::GUI
{
/** The sound and its echoes as lines in time. Dragged sideways it is their time, by note lengths where they keep to the
    tempo, and up and down the feedback. Thread: message.
*/
class DelayTaps : public Picture
{
public:
    DelayTaps (EditorContext& contextToUse, std::string element);

private:
    struct Line
    {
        juce::Rectangle<float> bounds;
        float opacity = 1.0f;
    };

    bool takeInputs (bool anyway) override;
    void paintPicture (juce::Graphics& g) override;
    juce::String describe() const override;
    std::vector<ParameterHandle> parametersOf (std::size_t) const override;
    std::pair<juce::String, juce::String> readoutOf (std::size_t) const override;
    void dragBegins (std::size_t) override;
    void moveHandle (std::size_t handle, juce::Point<float> moved) override;

    bool isFree() const { return mode->getInt() != 0; }
    double tempo() const;
    juce::String timeText (ValueDetail detail) const;

    const ParameterHandle mode, time, timeSync, feedback;
    EchoSettings inputs;
    double startSeconds = 0.0;
    float startFeedback = 0.0f; // normalised
    std::vector<Line> lines;
};
} // namespace Zn::GUI
