#include "Tool.h"

#include "Commands.h"
#include "Errors.h"

#include <algorithm>
#include <array>
#include <iostream>
#include <limits>
#include <string_view>

namespace Zn::PresetTool
{
namespace
{
constexpr int refusedStatus = 1, argumentStatus = 2;
constexpr auto anyNumber = std::numeric_limits<std::size_t>::max();

/** One command: how it is written, what it is for, and what it does. */
struct Command
{
    std::string_view name;
    std::string_view arguments; // as the help calls them
    std::size_t fewestFiles, mostFiles;
    std::string_view switchName; // empty: knows none
    std::string_view help;       // lines
    int (*run) (const Arguments&);
};

constexpr std::array commands {
    Command { "validate",
              "FILE...",
              1,
              anyNumber,
              "",
              "tell of each file whether it is a pattern or a sound preset, or why the\n"
              "plug-in refuses it",
              validate },
    Command { "list",
              "[--paths]",
              0,
              0,
              "--paths",
              "list the presets that the plug-in offers, factory presets first; --paths prints\n"
              "where they lie instead",
              list },
    Command { "show",
              "FILE",
              1,
              1,
              "",
              "draw the patterns of a preset and print its values as the plug-in reads them",
              show },
    Command { "diff",
              "A B",
              2,
              2,
              "",
              "compare two presets value by value; the exit status is 1 when they differ",
              diff },
    Command { "rewrite",
              "[--check] FILE...",
              1,
              anyNumber,
              "--check",
              "write files again as the plug-in itself would, keeping when they were made: with\n"
              "every value, in today's form; --check only tells which it would change",
              rewrite },
};

std::string helpText()
{
    constexpr std::size_t column = 30;
    std::string text = "Usage: vornel-presets COMMAND [ARGUMENT...]\n\n"
                       "Looks after Vornel's preset files, patterns and sounds.\n\n";

    for (const auto& command : commands)
    {
        auto call = "  " + std::string (command.name) + " " + std::string (command.arguments);
        call.resize (std::max (column, call.size() + 2), ' ');
        text += call;

        for (const auto letter : command.help)
            text += letter == '\n' ? "\n" + std::string (column, ' ') : std::string (1, letter);

        text += '\n';
    }

    return text
           + "  --help                      print this\n"
             "  --version                   print the version\n"
             "\nExit status: 0 done, 1 a file is refused or cannot be written, or two presets differ,\n"
             "2 wrong arguments.\n";
}

const Command& commandOf (const std::string& name)
{
    const auto* command = std::ranges::find (commands, name, &Command::name);

    if (command == commands.end())
        throw ArgumentError ("there is no command '" + name + "'; --help shows them all");

    return *command;
}

Arguments argumentsOf (const Command& command, std::span<const std::string> words)
{
    auto arguments = Arguments::from (words, command.switchName);

    if (arguments.files.size() < command.fewestFiles || arguments.files.size() > command.mostFiles)
        throw ArgumentError (std::string (command.name) + " wants "
                             + (command.mostFiles == 0 ? "no files" : std::string (command.arguments)));

    return arguments;
}

int run (std::span<const std::string> words)
{
    if (words.empty())
        throw ArgumentError ("which command? --help shows them all");

    if (words.front() == "--help")
    {
        std::cout << helpText();
        return 0;
    }

    if (words.front() == "--version")
    {
        std::cout << "vornel-presets " << ZN_PRESETS_VERSION << '\n';
        return 0;
    }

    const auto& command = commandOf (words.front());
    return command.run (argumentsOf (command, words.subspan (1)));
}

int report (const std::string& message, int status)
{
    std::cerr << "vornel-presets: " << message << '\n';
    return status;
}
} // namespace

int runTool (std::span<const std::string> arguments)
{
    try
    {
        return run (arguments);
    }
    catch (const ArgumentError& error)
    {
        return report (error.what(), argumentStatus);
    }
    catch (const std::exception& error)
    {
        return report (error.what(), refusedStatus);
    }
}
} // namespace Zn::PresetTool
