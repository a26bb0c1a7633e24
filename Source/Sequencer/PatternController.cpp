#include "Sequencer/PatternController.h"

#include "Foundation/Events/RefCountedHolder.h"
#include "Sequencer/Modifiers/ModRef.h"

#include <juce_events/juce_events.h>

namespace Zn::Sequencer
{
namespace
{
/** The slots as a list that a document resizes, though they stay where they are: others refer to them. */
struct ResizableSlots
{
    PatternController::Slots& slots;

    auto begin() noexcept { return slots.begin(); }
    auto end() noexcept { return slots.end(); }
    auto& operator[] (std::size_t index) noexcept { return slots[index]; }

    void resize (std::size_t size)
    {
        for (auto i = size; i < slots.size(); ++i)
            slots[i].reset();
    }
};
} // namespace

PatternController::Edit::Edit (PatternController& controllerToEdit) noexcept : controller (controllerToEdit)
{
    ++controller.openEdits;
}

PatternController::Edit::~Edit()
{
    --controller.openEdits;
    controller.rebuild();
}

PatternController::PatternController()
{
    build();
}

void PatternController::rebuild()
{
    JUCE_ASSERT_MESSAGE_MANAGER_IS_LOCKED

    if (openEdits > 0)
        return;

    build();
    audioBroadcaster.callListeners();
    editorBroadcaster.callListeners();
}

void PatternController::build()
{
    remakePlaybackSlots();
    patternData = renderAll();
}

void PatternController::remakePlaybackSlots()
{
    playbackSlots.clear();
    playbackSlots.resize (slots.size());

    for (std::size_t i = 0; i < slots.size(); ++i)
    {
        auto& pattern = slots[i].pattern;
        pattern.duration.setQuarters (slots[i].length());

        playbackSlots[i].clip.setChild (std::make_unique<Modifiers::ModRef> (pattern));
        playbackSlots[i].playing = flags[i].playing;
        playbackSlots[i].looping = flags[i].looping;
    }
}

std::shared_ptr<const PatternData> PatternController::renderAll() const
{
    const SwingWarp warp (swing);
    auto data = Events::RefCountedHolder<PatternData>::create();

    for (std::size_t i = 0; i < playbackSlots.size(); ++i)
        playbackSlots[i].render (warp, data->slots[i]);

    return data;
}

void PatternController::reflectPatterns (Reflector& r)
{
    ResizableSlots list { slots };
    ChildContainerSerializer patterns (list, false, numSlots);

    if (! r.isLoading())
    {
        r.addChild ("Patterns", patterns);
        return;
    }

    const Edit edit (*this);
    r.addChild ("Patterns", patterns);
}

void PatternController::reflectPlayback (Reflector& r)
{
    ChildContainerSerializer list (playbackSlots, false, numSlots);

    if (! r.isLoading())
    {
        r.addChild ("Slots", list);
        return;
    }

    const Edit edit (*this);
    r.addChild ("Slots", list);
    takeFlags();
}

void PatternController::takeFlags()
{
    flags = {};

    for (std::size_t i = 0; i < playbackSlots.size(); ++i)
        flags[i] = { playbackSlots[i].playing, playbackSlots[i].looping };
}
} // namespace Zn::Sequencer
