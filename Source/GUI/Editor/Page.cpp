#include "GUI/Editor/Page.h"

#include "GUI/Framework/AssetScheme/Base.h"

namespace Zn::GUI
{
Page::Page (Audio::Plugins::Vornel::Processor& processor)
    : edits (processor.getUndo(), [&processor] { processor.finishPendingLoad(); })
    , learning (processor.getState().learnMap)
    , shownSlot (processor.getState().slotParam.getInt())
    , overlay (*this, canvas, settings, polls)
    , context { .processor = processor,
                .canvas = canvas,
                .settings = settings,
                .edits = edits,
                .overlay = overlay,
                .learning = learning,
                .polls = polls,
                .shownSlot = shownSlot,
                .actions = actions }
    , timer (Events::UpdateTimer::screenInterval, [this] { polls.callListeners(); })
{
    setOpaque (true);
    setWantsKeyboardFocus (true);
    setLookAndFeel (&look);

    for (auto* band : std::initializer_list<juce::Component*> { &header,
                                                                &arpHeader,
                                                                &arpParams,
                                                                &brushes,
                                                                &pattern,
                                                                &sound,
                                                                &player,
                                                                &overlay })
        addAndMakeVisible (band);
}

Page::~Page()
{
    timer.setActive (false);
    overlay.closeAll();
    setLookAndFeel (nullptr);
}

void Page::resized()
{
    overlay.setBounds (getLocalBounds());
}

void Page::paint (juce::Graphics& g)
{
    g.fillAll (AssetScheme::Base::get().colourOf ("Window"));
}
} // namespace Zn::GUI
