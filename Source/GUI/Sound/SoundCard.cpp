#include "GUI/Sound/SoundCard.h"

#include "GUI/Framework/AssetScheme/Base.h"

namespace Zn::GUI
{
SoundCard::SoundCard (EditorContext& contextToUse, std::string element, const juce::String& title)
    : Element (contextToUse.canvas, std::move (element))
    , context (contextToUse)
    , pollListener (contextToUse.polls, [this] { poll(); })
{
    setTitle (title);
    setFocusContainerType (FocusContainerType::focusContainer);
}

void SoundCard::add (std::initializer_list<juce::Component*> children)
{
    for (auto* child : children)
        addAndMakeVisible (child);
}

void SoundCard::setPower (juce::Component& powerButton, std::function<bool()> isOnToAsk)
{
    power = &powerButton;
    isOn = std::move (isOnToAsk);
}

void SoundCard::poll()
{
    const auto synthIsOn = soundsNow (context);
    const auto partIsOn = isOn == nullptr || isOn();

    for (auto* child : getChildren())
        showAsOn (*child, synthIsOn && (partIsOn || child == power));
}

void SoundCard::schemeChanged()
{
    const auto area = getLocalBounds().toFloat();
    surface.clear();
    surface.addRoundedRectangle (area, context.canvas.cornerOf ("CardCorner", area));
    poll();
}

void SoundCard::paint (juce::Graphics& g)
{
    g.setColour (AssetScheme::Base::get().colourOf ("Card"));
    g.fillPath (surface);
}

bool soundsNow (const EditorContext& context) noexcept
{
    return context.state().params.sound.synthEnable.get() && ! context.processor.isMidiEffect();
}

void showAsOn (juce::Component& component, bool isOn)
{
    component.setAlpha (isOn ? 1.0f : AssetScheme::Base::get().constantOf ("DisabledOpacity"));
}
} // namespace Zn::GUI
