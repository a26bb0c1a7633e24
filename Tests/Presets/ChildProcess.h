#pragma once

#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <type_traits>
#include <utility>

namespace Zn::Presets::Tests
{
/** Runs a function in a copy of this process, which ends with it. */
class ChildProcess
{
public:
    template <typename Function>
    explicit ChildProcess (Function&& function) : process (::fork())
    {
        if (process == 0)
            runAndExit (std::forward<Function> (function));
    }

    ~ChildProcess() { kill(); }

    ChildProcess (const ChildProcess&) = delete;
    ChildProcess& operator= (const ChildProcess&) = delete;

    void kill()
    {
        if (process > 0)
            ::kill (process, SIGKILL);

        wait();
    }

    /** Waits for the function and tells whether it gave true. */
    bool getResult() { return wait() == success; }

    /** Tests may run as an administrator, to whom every file is open. */
    static void becomeNobody()
    {
        constexpr uid_t nobody = 65534;

        if (::getuid() == 0 && ::setuid (nobody) != 0)
            ::_exit (success);
    }

private:
    static constexpr int success = 1;

    template <typename Function>
    [[noreturn]] static void runAndExit (Function&& function)
    {
        if constexpr (std::is_void_v<std::invoke_result_t<Function>>)
        {
            function();
            ::_exit (success);
        }
        else
        {
            ::_exit (function() ? success : 0);
        }
    }

    int wait()
    {
        auto status = 0;

        if (process > 0)
            ::waitpid (std::exchange (process, 0), &status, 0);

        return WIFEXITED (status) ? WEXITSTATUS (status) : 0;
    }

    pid_t process;
};
} // namespace Zn::Presets::Tests
