#include "Plugin/Bases/StateChunk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace Zn::Audio::Plugin::StateChunk
{
namespace
{
using namespace std::string_literals;

std::string written (std::string_view text)
{
    juce::MemoryBlock block;
    write (text, block);
    return { static_cast<const char*> (block.getData()), block.getSize() };
}

std::string_view readFrom (const std::string& bytes)
{
    return read (bytes.data(), static_cast<int> (bytes.size()));
}
} // namespace

TEST (StateChunk, HasTheBytesThatOldProjectsHave)
{
    EXPECT_EQ (written ("{}"), "VC2!\x03\x00\x00\x00{}\x00"s);
}

TEST (StateChunk, ReadsAsFarAsThereIsDataAndAsItsLengthSays)
{
    const struct
    {
        const char* what;
        std::string bytes, text;
    } rows[] = {
        { "as written", written ("{}"), "{}\0"s },
        { "length without the NUL", "VC2!\2\0\0\0{}\0"s, "{}" },
        { "more data than text", "VC2!\2\0\0\0{}rest"s, "{}" },
        { "length beyond the data", "VC2!\xFF\xFF\xFF\x7F{}"s, "{}" },
        { "length zero", "VC2!\0\0\0\0{}"s, "" },
        { "length negative", "VC2!\xFF\xFF\xFF\xFF{}"s, "" },
        { "another magic", "VC1!\2\0\0\0{}"s, "" },
        { "nothing", "", "" },
    };

    for (const auto& [what, bytes, text] : rows)
        EXPECT_EQ (readFrom (bytes), text) << what;

    EXPECT_EQ (read (nullptr, 100), "");
    EXPECT_EQ (read ("VC2!\2\0\0\0{}", -1), "");
}
} // namespace Zn::Audio::Plugin::StateChunk
