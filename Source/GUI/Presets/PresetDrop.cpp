#include "GUI/Presets/PresetDrop.h"

#include <algorithm>

namespace Zn::GUI
{
namespace
{
bool canLoad (const PresetActions& actions, const juce::String& path)
{
    const juce::File file (path);
    return file.existsAsFile() && actions.getKind().library.isValidFile (file);
}
} // namespace

PresetDrop::PresetDrop (EditorContext& context)
    : patterns (context, PresetKind::patterns (context.state()))
    , sounds (context, PresetKind::sounds (context.state()))
{}

bool PresetDrop::accepts (const juce::StringArray& files) const
{
    return std::any_of (files.begin(), files.end(), [this] (const auto& path) {
        return canLoad (patterns, path) || canLoad (sounds, path);
    });
}

bool PresetDrop::drop (const juce::StringArray& files)
{
    for (const auto& path : files)
        for (auto* actions : { &patterns, &sounds })
            if (canLoad (*actions, path))
                return actions->load (juce::File (path));

    return false;
}

FileDrops::Kind presetDrop (PresetDrop& drop)
{
    return { .invitation = "Load this preset",
             .icon = "folder.svg",
             .accent = "Pattern",
             .accepts = [&drop] (const juce::StringArray& files) { return drop.accepts (files); },
             .drop = [&drop] (const juce::StringArray& files) { drop.drop (files); } };
}
} // namespace Zn::GUI
