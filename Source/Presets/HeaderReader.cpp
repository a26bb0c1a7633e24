#include "Presets/HeaderReader.h"

#include "Presets/DocumentHeader.h"
#include "Presets/Reflection/JsonText.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <utility>

namespace Zn::Presets
{
namespace
{
using nlohmann::json;

constexpr std::array headerKeys { "dirty", "id", "name", "product", "version" };
constexpr std::size_t longestBytes = 4 * longestText; // as UTF-8

/** Hears every value of a text and keeps the header of the outermost object. */
class HeaderCollector : public json::json_sax_t
{
public:
    json header;

    bool null() override { return keep (nullptr); }
    bool boolean (bool value) override { return keep (value); }
    bool number_integer (std::int64_t value) override { return keep (value); }
    bool number_unsigned (std::uint64_t value) override { return keep (value); }
    bool number_float (double value, const std::string&) override { return keep (value); }
    bool string (std::string& value) override
    {
        return ! isInHeader() || keep (value.substr (0, longestBytes));
    }
    bool binary (json::binary_t&) override { return true; }

    bool start_object (std::size_t) override
    {
        if (depth == 0)
            header = json::object();

        return enter();
    }

    bool key (std::string& name) override
    {
        if (depth == 1)
            inHeader = std::ranges::find (headerKeys, name) != headerKeys.end();

        if (isInHeader())
            currentKey = std::move (name);

        return true;
    }

    bool end_object() override { return leave(); }
    bool start_array (std::size_t) override { return enter(); }
    bool end_array() override { return leave(); }

    bool parse_error (std::size_t, const std::string&, const json::exception&) override { return false; }

private:
    bool isInHeader() const noexcept { return depth == 1 && inHeader; }

    template <typename Value>
    bool keep (Value&& value)
    {
        if (isInHeader())
            header[currentKey] = std::forward<Value> (value);

        return true;
    }

    bool enter()
    {
        if (isInHeader())
            header.erase (currentKey); // the last of several values with one key holds

        return ++depth <= Json::deepestNesting;
    }

    bool leave()
    {
        --depth;
        return true;
    }

    int depth = 0;
    bool inHeader = false; // the value that comes next, if it is one of the outermost object
    std::string currentKey;
};
} // namespace

json readHeader (std::string_view text)
{
    text = text.substr (0, text.find ('\0'));

    if (text.size() > Json::largestPresetText)
        return nullptr;

    HeaderCollector collector;
    return json::sax_parse (text.begin(), text.end(), &collector) ? collector.header : json();
}
} // namespace Zn::Presets
