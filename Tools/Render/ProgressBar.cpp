#include "ProgressBar.h"

#include <cstdio>
#include <iostream>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace Zn::Render
{
namespace
{
constexpr int width = 40;
constexpr juce::uint32 intervalMilliseconds = 100;

bool isErrorStreamATerminal()
{
#ifdef _WIN32
    return _isatty (_fileno (stderr)) != 0;
#else
    return ::isatty (STDERR_FILENO) != 0;
#endif
}
} // namespace

ProgressBar::ProgressBar() : onTerminal (isErrorStreamATerminal()) {}

ProgressBar::~ProgressBar()
{
    if (onTerminal)
        std::cerr << '\r' << std::string (width + 8, ' ') << '\r' << std::flush;
}

void ProgressBar::show (juce::int64 done, juce::int64 total)
{
    const auto now = juce::Time::getMillisecondCounter();

    if (! onTerminal || (now - lastShown < intervalMilliseconds && done < total))
        return;

    const auto proportion = static_cast<double> (done) / static_cast<double> (total);
    const auto filled = static_cast<std::size_t> (proportion * width);
    const auto percent = static_cast<int> (100.0 * proportion);

    std::cerr << "\r[" << std::string (filled, '#') << std::string (width - filled, ' ') << "] " << percent
              << '%' << std::flush;
    lastShown = now;
}
} // namespace Zn::Render
