#pragma once

#include "GUI/Framework/AssetScheme/Element.h"
#include "GUI/Framework/SVGPainter.h"
#include "GUI/Pattern/RollContext.h"

namespace Zn::GUI
{
/** Says what the rows are to somebody who holds no keys, until they have played a few chords. Lets clicks through.
    Thread: message.
*/
class RollHint : public AssetScheme::Element<>
{
public:
    explicit RollHint (RollContext& contextToUse);

    void paint (juce::Graphics& g) override;
    void schemeChanged() override;

private:
    void followKeys();
    void appear (bool shouldBeSeen);

    RollContext& context;
    SVGPainter icon { "keys.svg" };
    juce::Font regular, bold;
    bool hadKeys = false, isWanted = true;
    Events::Listener namesListener;
};
} // namespace Zn::GUI
