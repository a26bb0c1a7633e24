#pragma once

#include <juce_events/juce_events.h>

#include <array>

#if JUCE_LINUX
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace Zn::Audio
{
/** The program ends as by its close button when the system or a shell ends it, so that nothing of the work is lost.
    JUCE itself answers to Ctrl+C alone, and asks nobody. One at a time. Thread: message.
*/
class QuitSignals
{
#if JUCE_LINUX
public:
    QuitSignals()
    {
        if (::pipe2 (ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
            return;

        writeEnd = ends[1];
        juce::LinuxEventLoop::registerFdCallback (ends[0], [] (int readEnd) {
            char signal = 0;

            if (::read (readEnd, &signal, 1) == 1)
                juce::JUCEApplicationBase::getInstance()->systemRequestedQuit();
        });

        for (const auto signal : signals)
            if (std::signal (signal, tell) == SIG_IGN)
                std::signal (signal, SIG_IGN); // as nohup has it
    }

    ~QuitSignals()
    {
        if (ends[0] < 0)
            return;

        for (const auto signal : signals)
            std::signal (signal, SIG_DFL);

        juce::LinuxEventLoop::unregisterFdCallback (ends[0]);

        for (const auto end : ends)
            ::close (end);
    }

    QuitSignals (const QuitSignals&) = delete;
    QuitSignals& operator= (const QuitSignals&) = delete;

private:
    /** Writes a byte, which is about all that a handler may do. */
    static void tell (int signal)
    {
        const auto errorBefore = errno;
        const auto byte = static_cast<char> (signal);
        [[maybe_unused]] const auto written = ::write (writeEnd, &byte, 1);
        errno = errorBefore;
    }

    static constexpr std::array signals { SIGINT, SIGTERM, SIGHUP };
    static inline volatile std::sig_atomic_t writeEnd = -1;

    std::array<int, 2> ends { -1, -1 }; // of a pipe
#endif
};
} // namespace Zn::Audio
