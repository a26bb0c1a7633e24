#include "Tool.h"

#include <csignal>
#include <vector>

namespace
{
std::atomic<bool> interrupted { false };
static_assert (std::atomic<bool>::is_always_lock_free); // a signal handler writes it

void interrupt (int)
{
    interrupted = true;
}
} // namespace

int main (int argc, char** argv)
{
    std::signal (SIGINT, interrupt);
    std::signal (SIGTERM, interrupt);

    const std::vector<std::string> arguments (argv + 1, argv + argc);
    return Zn::TonqTool::runTool (arguments, interrupted);
}
