#pragma once

#include "Foundation/GUIToRealTime.h"
#include "Midi/RowToPitchTable.h"

#include <cstdint>

namespace Zn::Midi
{
/** Shows the pitch table to the editor. One thread owns the Writer, one other the Reader. */
class PitchTableRing
{
    using Ring = GUIToRealTime<RowToPitchTable, 5>;

public:
    /** Thread: audio. */
    class Writer
    {
    public:
        explicit Writer (PitchTableRing& owner) noexcept;

        /** Publishes a table with the limits that hold now; it may have been built with earlier ones. */
        void publish (const RowToPitchTable& table, PitchLimits limits) noexcept;

    private:
        Ring::Writer frames;
        std::atomic<std::int32_t>& changes;
    };

    /** Thread: message. */
    class Reader
    {
    public:
        explicit Reader (PitchTableRing& owner) noexcept;

        /** Differs from an earlier answer when a table has been published since. */
        std::int32_t getChangeCount() const noexcept { return changes.load(); }

        /** The newest table. The reference holds until the next call. */
        const RowToPitchTable& newest() noexcept { return frames.newest(); }

    private:
        Ring::Reader frames;
        const std::atomic<std::int32_t>& changes;
    };

    Writer getWriter() noexcept { return Writer (*this); }
    Reader getReader() noexcept { return Reader (*this); }

private:
    Ring ring;
    std::atomic<std::int32_t> changeCount { 0 }; // written: audio, read: GUI
};
} // namespace Zn::Midi
