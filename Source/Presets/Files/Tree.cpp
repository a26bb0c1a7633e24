#include "Presets/Files/Tree.h"

#include "Presets/Base.h"

#include <algorithm>

namespace Zn::Files
{
namespace
{
Tree& folderIn (Tree& parent, const juce::File& folder)
{
    auto& children = parent.children;
    const auto found = std::find_if (children.begin(), children.end(), [&folder] (const Tree& child) {
        return child.isFolder && child.file == folder;
    });

    return found != children.end() ? *found : children.emplace_back (Tree { folder, true, {} });
}
} // namespace

void Tree::add (const juce::File& fileBelow)
{
    auto names = juce::StringArray::fromTokens (fileBelow.getRelativePathFrom (file),
                                                juce::File::getSeparatorString(),
                                                {});
    names.remove (names.size() - 1);

    auto* folder = this;

    for (const auto& name : names)
        folder = &folderIn (*folder, folder->file.getChildFile (name));

    folder->children.push_back ({ fileBelow, false, {} });
}
} // namespace Zn::Files

namespace Zn::Presets
{
Files::Tree getListTree (Base& library, const juce::File& folder)
{
    Files::Tree tree { folder, true, {} };

    for (const auto& entry : library.getList())
        if (entry.file.isAChildOf (folder))
            tree.add (entry.file);

    return tree;
}
} // namespace Zn::Presets
