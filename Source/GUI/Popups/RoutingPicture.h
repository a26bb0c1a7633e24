#pragma once

#include "GUI/Framework/AssetScheme/Element.h"
#include "GUI/Popups/RoutingCases.h"

#include <vector>

namespace Zn::GUI
{
/** The way that the notes take. Thread: message. */
class RoutingPicture : public AssetScheme::Element<>
{
public:
    explicit RoutingPicture (AssetScheme::Canvas& canvas);

    void show (const RoutingCase& newCase);

    void schemeChanged() override;
    void paint (juce::Graphics& g) override;

private:
    const RoutingCase* shown = &routingCases().front();
    juce::Font nameFont, detailFont;
};

/** What to do for it, step by step. Thread: message. */
class RoutingSteps : public AssetScheme::Element<>
{
public:
    explicit RoutingSteps (AssetScheme::Canvas& canvas);

    void show (const RoutingCase& newCase);

    void schemeChanged() override;
    void paint (juce::Graphics& g) override;

private:
    const RoutingCase* shown = &routingCases().front();
    juce::Font numberFont;
    std::vector<juce::TextLayout> lines;
};
} // namespace Zn::GUI
