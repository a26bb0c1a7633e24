#include "GUI/Presets/SaveTarget.h"

#include <algorithm>

namespace Zn::GUI::SaveTarget
{
namespace
{
/** "Crossing Lines" of "Crossing Lines 2". */
juce::String withoutNumber (const juce::String& name)
{
    const auto stem = name.trimCharactersAtEnd ("0123456789");
    return stem.isNotEmpty() && stem != name && stem.endsWithChar (' ') ? stem.trimEnd() : name;
}
} // namespace

juce::String allowedCharacters (const juce::String& text)
{
    juce::String kept;

    for (auto c = text.getCharPointer(); ! c.isEmpty(); ++c)
        if (constexpr juce::juce_wchar firstVisible = 32, deleteCharacter = 127;
            *c >= firstVisible && *c != deleteCharacter)
            kept += *c;

    return juce::File::createLegalFileName (kept);
}

juce::String legalName (const juce::String& text)
{
    constexpr auto longestName = 100; // leaves room for the extension within what file systems take

    // Some hide what begins with a point, others drop what is at the end.
    return allowedCharacters (text)
        .trimCharactersAtStart (" .")
        .substring (0, longestName)
        .trimCharactersAtEnd (" .");
}

juce::File fileFor (const Presets::Base& library, const juce::String& name, const juce::String& category)
{
    const auto legal = legalName (name);

    if (legal.isEmpty())
        return {};

    auto folder = library.getUserFolder();

    for (const auto& part : juce::StringArray::fromTokens (category, "/", {}))
        if (const auto legalPart = legalName (part); legalPart.isNotEmpty())
            folder = folder.getChildFile (legalPart);

    return folder.getChildFile (legal + "." + library.getExtension());
}

juce::String freeName (Presets::Base& library, const juce::String& name)
{
    const auto& list = library.getList();
    const auto isTaken = [&list] (const juce::String& candidate) {
        return std::any_of (list.begin(), list.end(), [&candidate] (const auto& entry) {
            return entry.file.getFileNameWithoutExtension().equalsIgnoreCase (candidate);
        });
    };

    if (! isTaken (name))
        return name;

    const auto stem = withoutNumber (name);

    for (auto number = 2;; ++number)
        if (const auto candidate = stem + " " + juce::String (number); ! isTaken (candidate))
            return candidate;
}

juce::String whyNotWritable (const Presets::Base& library, const juce::File& file)
{
    const auto folder = file.getParentDirectory();

    if (file.isAChildOf (library.getContentFolder()))
        return "The folder of the factory presets is written anew at each start.";

    if (file == juce::File())
        return "The preset has no name.";

    if (const auto made = folder.createDirectory(); made.failed())
        return made.getErrorMessage();

    if (file.isDirectory())
        return "There is a folder of this name.";

    if (! folder.hasWriteAccess())
        return "The folder is write-protected.";

    if (file.existsAsFile() && ! file.hasWriteAccess())
        return "The file is write-protected.";

    return {};
}
} // namespace Zn::GUI::SaveTarget
