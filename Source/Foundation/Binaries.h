#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/** Files that are part of the program, found by name. */
namespace Zn::Binaries
{
/** The content of an embedded file; null and of size 0 where there is none. */
using Bytes = std::span<const std::byte>;

/** The name that a file is looked up by: blanks and points become underscores and hyphens go, so that
    "Basics - ARP.wav" is "Basics__ARP_wav".
*/
std::string resourceName (std::string_view fileName);

/** Of a resource name. Bytes count as signed on every machine. */
constexpr std::uint32_t hashOf (std::string_view name) noexcept
{
    std::uint32_t hash = 0;

    for (const auto character : name)
        hash = hash * 31 + static_cast<std::uint32_t> (static_cast<signed char> (character));

    return hash;
}

/** The files of one data target. What it names lives as long as the program; it never changes. Thread: any. */
class Library
{
public:
    struct File
    {
        std::string_view fileName;
        Bytes content;
    };

    Library() = default;
    explicit Library (std::span<const File> files);

    /** Empty for an unknown name. */
    Bytes find (std::string_view resourceName) const noexcept;
    std::string_view fileNameOf (std::string_view resourceName) const noexcept;

    std::size_t size() const noexcept { return resources.size(); }

private:
    struct Resource
    {
        std::uint32_t hash;
        std::string name;
        File file;
    };

    const Resource* lookUp (std::string_view name) const noexcept;

    std::vector<Resource> resources; // by hash
};

/** A library of what zn_add_data generates: the members of its namespace, one by one. */
Library libraryOf (const char* const* names,
                   const char* const* fileNames,
                   int numFiles,
                   const char* (*contentOf) (const char* name, int& size));
} // namespace Zn::Binaries
