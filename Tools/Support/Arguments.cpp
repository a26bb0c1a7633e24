#include "Support/Arguments.h"

#include "Support/Errors.h"

namespace Zn::Tools
{
Arguments Arguments::from (std::span<const std::string> words, std::string_view switchName)
{
    Arguments arguments;
    auto onlyFiles = false;

    for (const auto& word : words)
    {
        if (onlyFiles || ! word.starts_with ('-'))
            arguments.files.push_back (fileFrom (word));
        else if (word == "--")
            onlyFiles = true;
        else if (word == switchName)
            arguments.hasSwitch = true;
        else
            throw ArgumentError ("there is no '" + word + "' here; --help shows what there is");
    }

    return arguments;
}

juce::File fileFrom (const std::string& text)
{
    if (text.empty())
        throw ArgumentError ("a file needs a name");

    return juce::File::getCurrentWorkingDirectory().getChildFile (juce::String::fromUTF8 (text.c_str()));
}
} // namespace Zn::Tools
