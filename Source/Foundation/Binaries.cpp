#include "Foundation/Binaries.h"

#include <algorithm>

namespace Zn::Binaries
{
std::string resourceName (std::string_view fileName)
{
    std::string name;

    for (const auto character : fileName)
        if (character != '-')
            name += character == ' ' || character == '.' ? '_' : character;

    return name;
}

Library::Library (std::span<const File> files)
{
    for (const auto& file : files)
    {
        auto name = resourceName (file.fileName);
        const auto hash = hashOf (name);
        resources.push_back ({ hash, std::move (name), file });
    }

    std::stable_sort (resources.begin(), resources.end(), [] (const Resource& a, const Resource& b) {
        return a.hash < b.hash;
    });
}

Bytes Library::find (std::string_view name) const noexcept
{
    const auto* resource = lookUp (name);
    return resource != nullptr ? resource->file.content : Bytes {};
}

std::string_view Library::fileNameOf (std::string_view name) const noexcept
{
    const auto* resource = lookUp (name);
    return resource != nullptr ? resource->file.fileName : std::string_view {};
}

const Library::Resource* Library::lookUp (std::string_view name) const noexcept
{
    const auto hash = hashOf (name);
    const auto byHash = [] (const Resource& resource, std::uint32_t wanted) {
        return resource.hash < wanted;
    };

    // Different names may share a hash: only the name itself says that it is the one.
    for (auto it = std::lower_bound (resources.begin(), resources.end(), hash, byHash);
         it != resources.end() && it->hash == hash;
         ++it)
        if (it->name == name)
            return &*it;

    return nullptr;
}

Library libraryOf (const char* const* names,
                   const char* const* fileNames,
                   int numFiles,
                   const char* (*contentOf) (const char* name, int& size))
{
    std::vector<Library::File> files;

    for (auto i = 0; i < numFiles; ++i)
    {
        auto size = 0;
        const auto* content = contentOf (names[i], size);
        files.push_back (
            { fileNames[i], std::as_bytes (std::span (content, static_cast<std::size_t> (size))) });
    }

    return Library { files };
}
} // namespace Zn::Binaries
