#pragma once

#include "Foundation/Events/UpdateTimer.h"
#include "Presets/Screen.h"
#include "Presets/Undo/Holder.h"

#include <juce_audio_processors/juce_audio_processors.h>

namespace Zn::Audio::Plugin
{
/** The window that a host shows: one page, as large as the project keeps it. A load or an undo that brings another size
    resizes it; a resize by hand goes into the project.

    Page is a component made from the processor; `limit` gives its smallest and largest size and its proportions, and
    `defaultSize` what it opens with. Thread: message.
*/
template <typename ProcessorType, typename Page>
class StateEditor : public juce::AudioProcessorEditor, public Undo::Holder
{
public:
    explicit StateEditor (ProcessorType& processorToShow)
        : AudioProcessorEditor (processorToShow)
        , Holder (processorToShow.getUndo())
        , screen (processorToShow.getState().getScreen())
        , page (processorToShow)
    {
        addAndMakeVisible (page);
        Page::limit (constrainer);
        setConstrainer (&constrainer);
        setResizable (true, false); // the page has a corner of its own
        takeSize (screen.getSize());
        following = true;
    }

    Page& getPage() noexcept { return page; }

    void resized() override
    {
        page.setBounds (getLocalBounds());

        if (following)
        {
            lastSize = { getWidth(), getHeight() };
            screen.setSize (lastSize);
        }
    }

    void paint (juce::Graphics&) override {}

private:
    using Size = Presets::Screen::Size;

    void takeSize (Size wanted)
    {
        const auto [width, height] = wanted.width > 0 && wanted.height > 0 ? wanted : Page::defaultSize();
        lastSize = wanted;
        auto bounds = juce::Rectangle<int> (width, height);
        constrainer.checkBounds (bounds, getLocalBounds(), {}, false, false, true, true);
        setSize (bounds.getWidth(), bounds.getHeight());
    }

    void followScreen()
    {
        if (const auto size = screen.getSize(); ! (size == lastSize) && size.width > 0)
            takeSize (size);
    }

    Presets::Screen& screen;
    Size lastSize;
    bool following = false; // a window that nobody has resized keeps nothing in the project
    juce::ComponentBoundsConstrainer constrainer;
    Page page;
    Events::UpdateTimer timer { Events::UpdateTimer::screenInterval, [this] { followScreen(); } };
};
} // namespace Zn::Audio::Plugin
