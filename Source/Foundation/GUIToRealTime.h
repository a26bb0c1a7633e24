#pragma once

#include <array>
#include <atomic>
#include <cstddef>

namespace Zn
{
/** Hands the newest of a stream of values from one thread to another: neither waits, nothing is copied twice,
    and the frame that the reader holds is never written.

    One thread owns the Writer, one other the Reader; each class offers only what its thread may do. Frame 0
    holds the initial value, so a reader is valid before the first write. N is at least 4: one frame held by
    the reader, one newest, one being written, one that a slow reader may be about to take.
*/
template <typename T, int N>
class GUIToRealTime
{
    static_assert (N >= 4);

public:
    class Writer;
    class Reader;

    GUIToRealTime() = default;
    explicit GUIToRealTime (const T& initial) { frames.front() = initial; }

    GUIToRealTime (const GUIToRealTime&) = delete;
    GUIToRealTime& operator= (const GUIToRealTime&) = delete;

    Writer getWriter() noexcept { return Writer (*this); }
    Reader getReader() noexcept { return Reader (*this); }

private:
    static constexpr int next (int index) noexcept { return (index + 1) % N; }
    static constexpr int previous (int index) noexcept { return (index + N - 1) % N; }

    std::array<T, static_cast<std::size_t> (N)> frames {};
    std::atomic<int> writeIndex { 1 }; // written: writer, read: reader
    std::atomic<int> readIndex { 0 };  // written: reader, read: writer
};

template <typename T, int N>
class GUIToRealTime<T, N>::Writer
{
public:
    explicit Writer (GUIToRealTime& ringToUse) noexcept : ring (ringToUse) {}

    /** Calls fill (T&) on a frame that nobody reads, then makes it the newest. The frame holds an old value,
        whose resources are released here, on the writer's thread.
    */
    template <typename Fill>
    void publish (Fill&& fill)
    {
        auto index = ring.writeIndex.load();

        if (index == ring.readIndex.load())
            index = next (index);

        fill (ring.frames[static_cast<std::size_t> (index)]);
        ring.writeIndex.exchange (next (index));
    }

    /** Sets every frame but the one that the reader holds to a value and publishes it: nothing old
        stays alive in the others.
    */
    void replaceAll (const T& value)
    {
        for (auto i = 0; i < N; ++i)
            publish ([&value] (T& frame) { frame = value; });
    }

private:
    GUIToRealTime& ring;
};

template <typename T, int N>
class GUIToRealTime<T, N>::Reader
{
public:
    explicit Reader (GUIToRealTime& ringToUse) noexcept : ring (ringToUse) {}

    /** The newest value. Never blocks; the reference holds until the next call. */
    T& newest() noexcept
    {
        // A reader that was pre-empted between the two steps could hold a frame that is being filled, so it
        // looks again after it has announced its choice.
        for (;;)
        {
            const auto index = previous (ring.writeIndex.load());
            ring.readIndex.exchange (index);

            if (previous (ring.writeIndex.load()) == index)
                return ring.frames[static_cast<std::size_t> (index)];
        }
    }

private:
    GUIToRealTime& ring;
};
} // namespace Zn
