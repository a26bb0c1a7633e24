#include "Midi/Inbox.h"

#include <thread>

namespace Zn::Midi
{
namespace
{
constexpr int maxTriesOfAudioThread = 1000;
}

bool Inbox::push (std::span<const std::uint8_t> message) noexcept
{
    ShortMessage copy;

    if (message.size() != copy.bytes.size())
        return false;

    std::copy (message.begin(), message.end(), copy.bytes.begin());

    lock();
    const auto hasRoom = count < capacity;

    if (hasRoom)
        messages[static_cast<std::size_t> (count++)] = copy;

    unlock();
    return hasRoom;
}

bool Inbox::push (const juce::MidiMessage& message) noexcept
{
    return push (std::span (message.getRawData(), static_cast<std::size_t> (message.getRawDataSize())));
}

void Inbox::clear() noexcept
{
    lock();
    count = 0;
    unlock();
}

void Inbox::drainInto (juce::MidiBuffer& midi) noexcept
{
    if (! tryLock (maxTriesOfAudioThread))
        return;

    // Copied first, because the editor waits while the flag is held.
    std::array<ShortMessage, capacity> taken;
    const auto numTaken = std::exchange (count, 0);
    std::copy_n (messages.begin(), numTaken, taken.begin());
    unlock();

    for (auto i = 0; i < numTaken; ++i)
        midi.addEvent (taken[static_cast<std::size_t> (i)].bytes.data(), 3, 0);
}

void Inbox::lock() noexcept
{
    while (! tryLock())
        std::this_thread::yield();
}

bool Inbox::tryLock (int maxTries) noexcept
{
    for (auto i = 0; i < maxTries; ++i)
        if (tryLock())
            return true;

    return false;
}
} // namespace Zn::Midi
