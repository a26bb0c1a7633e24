#include "Fuzz/JsonMutator.h"

#include "Presets/Reflection/JsonText.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <iterator>
#include <random>

extern "C" std::size_t LLVMFuzzerMutate (std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace Zn::Fuzz
{
namespace
{
using nlohmann::json;
using Random = std::minstd_rand;

constexpr auto strangeValues =
    R"([null, true, false, -1, 0, 1, 3, 300, 2147483647, 2147483648, -9223372036854775808,
    18446744073709551615, 0.5, -0.0, 1e300, -1e-300, "", " ", "x", "nan", "-inf", "1e400", "3", "-5", "Off", "On", "1/4",
    "-100.00 dB", "-20%", [], {}, [null], [[]], [{}, {}], {"Bars": 3}, [{"num": 1e9}], {"Value": "x"}, {"value": null}])";

std::size_t below (Random& random, std::size_t limit)
{
    return std::uniform_int_distribution<std::size_t> (0, limit - 1) (random);
}

bool oneIn (Random& random, std::size_t chances)
{
    return below (random, chances) == 0;
}

json& childAt (json& node, std::size_t index)
{
    return *std::next (node.begin(), static_cast<std::ptrdiff_t> (index));
}

json& anyPlace (json& root, Random& random)
{
    constexpr std::size_t depth = 8; // about as deep as documents are
    auto* node = &root;

    while (node->is_structured() && ! node->empty() && ! oneIn (random, depth))
        node = &childAt (*node, below (random, node->size()));

    return *node;
}

json strangeValue (Random& random)
{
    static const auto values = json::parse (strangeValues);
    return values[below (random, values.size())];
}

void mutateText (std::string& text)
{
    constexpr std::size_t roomToGrow = 8;
    const auto size = text.size();
    text.resize (size + roomToGrow);
    text.resize (LLVMFuzzerMutate (reinterpret_cast<std::uint8_t*> (text.data()), size, text.size()));
}

void repeatItem (json& list, Random& random)
{
    constexpr std::size_t mostCopies = 64;
    const auto item = childAt (list, below (random, list.size()));
    list.insert (list.end(), below (random, mostCopies), item);
}

void eraseItem (json& node, Random& random)
{
    node.erase (std::next (node.begin(), static_cast<std::ptrdiff_t> (below (random, node.size()))));
}

void change (json& node, json& root, Random& random)
{
    if (oneIn (random, 3))
        node = strangeValue (random);
    else if (oneIn (random, 4))
        node = json (anyPlace (root, random));
    else if (node.is_string())
        mutateText (node.get_ref<std::string&>());
    else if (node.is_number())
        node = std::normal_distribution<> (0.0, node.get<double>() + 1.0) (random);
    else if (node.is_array() && ! node.empty() && oneIn (random, 2))
        repeatItem (node, random);
    else if (node.is_structured() && ! node.empty())
        eraseItem (node, random);
    else
        node = strangeValue (random);
}
} // namespace

std::string mutatedJson (std::string_view text, unsigned seed)
{
    auto document = Json::parse (text);

    if (document.is_null())
        return std::string (text);

    Random random (seed);

    for (auto i = below (random, 3) + 1; i > 0; --i)
        change (anyPlace (document, random), document, random);

    return Json::toText (document);
}

std::size_t mutateBehindHeader (std::span<std::uint8_t> buffer,
                                std::size_t size,
                                unsigned seed,
                                std::size_t headerSize,
                                void (*writeHeader) (std::span<std::uint8_t>))
{
    constexpr unsigned plainMutations = 4; // one of so many
    const std::string_view bytes (reinterpret_cast<const char*> (buffer.data()), size);

    if (seed % plainMutations == 0 || size <= headerSize)
        return LLVMFuzzerMutate (buffer.data(), size, buffer.size());

    const auto text = mutatedJson (bytes.substr (headerSize), seed);

    if (headerSize + text.size() > buffer.size() || text == bytes.substr (headerSize))
        return LLVMFuzzerMutate (buffer.data(), size, buffer.size());

    const auto rest = buffer.subspan (headerSize);
    std::copy (text.begin(), text.end(), rest.begin());
    writeHeader (buffer.first (headerSize + text.size()));
    return headerSize + text.size();
}
} // namespace Zn::Fuzz
