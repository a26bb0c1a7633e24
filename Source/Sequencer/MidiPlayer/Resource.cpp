#include "Sequencer/MidiPlayer/Resource.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Zn::Sequencer::MidiPlayer
{
namespace
{
using Type = Resource::Type;

constexpr std::array<std::pair<Type, const char*>, 4> typeNames { { { Type::none, "None" },
                                                                    { Type::binary, "Binary" },
                                                                    { Type::sharedBinary, "SharedBinary" },
                                                                    { Type::externalFile,
                                                                      "External File" } } };

constexpr std::size_t longestName = 4096; // bytes
constexpr std::size_t largestData =
    1536 * 1024; // bytes: base64 of a MIDI file of 1 MiB, and more than any path

std::string nameOf (Type type)
{
    return typeNames[static_cast<std::size_t> (type)].second;
}

Type typeFrom (const std::string& name)
{
    const auto* found = std::ranges::find (typeNames, name, [] (const auto& entry) { return entry.second; });
    return found != typeNames.end() ? found->first : Type::none;
}

bool needsData (Type type) noexcept
{
    return type == Type::binary || type == Type::externalFile;
}
} // namespace

void Resource::reflect (Reflector& r)
{
    auto typeName = nameOf (type);

    r.add ("name", name);
    r.add ("type", typeName);

    if (! r.isLoading())
    {
        r.add ("data", data);
        return;
    }

    type = typeFrom (typeName);

    if (needsData (type))
        r.add ("data", data);
    else
        data.clear();

    if (name.size() > longestName || data.size() > largestData)
        *this = {};
}
} // namespace Zn::Sequencer::MidiPlayer
