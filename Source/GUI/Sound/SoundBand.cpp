#include "GUI/Sound/SoundBand.h"

#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Sound/OscillatorCopy.h"
#include "Parameters/CreateForwarder.h"

namespace Zn::GUI
{
SoundBand::SoundBand (EditorContext& contextToUse)
    : Element (contextToUse.canvas, "SoundModule")
    , context (contextToUse)
    , oscillators { { { context, 0, callbacksOf (0) },
                      { context, 1, callbacksOf (1) },
                      { context, 2, callbacksOf (2) },
                      { context, 3, callbacksOf (3) } } }
    , master (context,
              "Master",
              Parameters::createForwarder (context.state().params.sound.master),
              { .direction = Slider::Direction::longer, .accent = "Sound" })
    , fold (context,
            "SoundFold",
            { .text = "", .icon = "down.svg", .look = Button::Look::quiet },
            [&actions = context.actions] { actions.fold(); })
    , pollListener (contextToUse.polls, [this] { poll(); })
{
    setTitle ("Sound");
    setFocusContainerType (FocusContainerType::focusContainer);

    auto order = 0;

    // The slider lies on its card, or, folded, on the header.
    for (auto* part : std::initializer_list<juce::Component*> { &header,
                                                                &fold,
                                                                &oscillators[0],
                                                                &oscillators[1],
                                                                &oscillators[2],
                                                                &oscillators[3],
                                                                &sub,
                                                                &unison,
                                                                &filter,
                                                                &envelope,
                                                                &delay,
                                                                &masterCard,
                                                                &master,
                                                                &foldedValue })
    {
        part->setExplicitFocusOrder (++order);
        addAndMakeVisible (part);
    }
}

OscillatorCard::Callbacks SoundBand::callbacksOf (std::size_t oscillator)
{
    return { .unisonClicked = [this] { unison.focusVoices(); },
             .dragged = [this, oscillator] (
                            auto onScreen) { return showDropTarget (&oscillators[oscillator], onScreen); },
             .dropped = [this, oscillator] (auto onScreen,
                                            bool swaps) { drop (oscillator, onScreen, swaps); },
             .table = { .dragged = [this] (auto onScreen) { return showDropTarget (nullptr, onScreen); },
                        .dropped = [this] (int table, auto onScreen) { dropTable (table, onScreen); } } };
}

OscillatorCard* SoundBand::cardAt (juce::Point<int> onScreen)
{
    for (auto& card : oscillators)
        if (card.getScreenBounds().contains (onScreen))
            return &card;

    return nullptr;
}

bool SoundBand::showDropTarget (const OscillatorCard* from, std::optional<juce::Point<int>> onScreen)
{
    const auto* const under = onScreen ? cardAt (*onScreen) : nullptr;
    const auto* const target = under != from ? under : nullptr;

    for (auto& card : oscillators)
        card.setDropTarget (&card == target);

    return target != nullptr;
}

void SoundBand::dropTable (int table, juce::Point<int> onScreen)
{
    showDropTarget (nullptr, {});

    if (auto* const target = cardAt (onScreen))
        target->setTable (table);
}

void SoundBand::drop (std::size_t from, juce::Point<int> onScreen, bool swaps)
{
    showDropTarget (nullptr, {});

    const auto* target = cardAt (onScreen);

    if (target == nullptr || target == &oscillators[from])
        return;

    auto& params = context.state().params.sound.synth.oscillators.oscillators;
    auto& source = params[from];
    auto& destination = params[static_cast<std::size_t> (target - oscillators.data())];

    context.edits.perform (swaps ? "Swap oscillators" : "Copy oscillator", [&] {
        return swaps ? swapOscillators (source, destination) : copyOscillator (source, destination);
    });
}

void SoundBand::schemeChanged()
{
    const auto isFolded = context.canvas.getFold() == AssetScheme::Fold::folded;

    for (auto* child : getChildren())
        if (dynamic_cast<SoundCard*> (child) != nullptr)
            child->setVisible (! isFolded);

    foldedValue.setVisible (isFolded);
    fold.setIcon (isFolded ? "up.svg" : "down.svg");
    fold.setHelp (isFolded ? "Open the sound again." : "Fold the sound away for a taller roll.");

    const juce::Component& ahead = isFolded ? static_cast<juce::Component&> (foldedValue) : header;
    fold.setExplicitFocusOrder (ahead.getExplicitFocusOrder()); // and further right
    poll();
}

void SoundBand::poll()
{
    const auto synthIsOn = soundsNow (context);
    showAsOn (master, synthIsOn);
    showAsOn (foldedValue, synthIsOn);
}

void SoundBand::paint (juce::Graphics& g)
{
    const auto hairline = std::max (1.0f, context.canvas.pixelsOf ("HairlineStroke"));
    g.setColour (AssetScheme::Base::get().colourOf ("Hairline"));
    g.fillRect (getLocalBounds().toFloat().withHeight (hairline));
}
} // namespace Zn::GUI
