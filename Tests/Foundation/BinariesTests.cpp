#include "Foundation/Binaries.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace Zn::Binaries
{
namespace
{
std::string textOf (Bytes bytes)
{
    std::string text;

    for (const auto byte : bytes)
        text += static_cast<char> (byte);

    return text;
}

Bytes bytesOf (std::string_view text)
{
    return std::as_bytes (std::span (text));
}
} // namespace

TEST (Binaries, FindsFilesByTheirResourceName)
{
    const std::array files { Library::File { "Main.json", bytesOf ("{}") },
                             Library::File { "Basics - ARP.wav", bytesOf ("RIFF") },
                             Library::File { "Empty.txt", bytesOf ("") } };
    const Library library { files };

    EXPECT_EQ (textOf (library.find ("Main_json")), "{}");
    EXPECT_EQ (textOf (library.find ("Basics__ARP_wav")), "RIFF");
    EXPECT_EQ (library.fileNameOf ("Basics__ARP_wav"), "Basics - ARP.wav");

    for (const auto* unknown : { "", "Main.json", "main_json", "Main_jso" })
    {
        EXPECT_EQ (library.find (unknown).data(), nullptr) << unknown;
        EXPECT_EQ (library.find (unknown).size(), 0u) << unknown;
        EXPECT_EQ (library.fileNameOf (unknown), "") << unknown;
    }
}

TEST (Binaries, HashesBytesAsSigned)
{
    EXPECT_EQ (hashOf (""), 0u);
    EXPECT_EQ (hashOf ("Main_json"), 0x68776B8Eu);
    EXPECT_EQ (hashOf ("Basics__ARP_wav"), 0xEEAE1487u);
    EXPECT_EQ (hashOf ("Colors_json"), 0xD3647637u);
    EXPECT_EQ (hashOf ("\xC3\xA9"), 0xFFFFF846u);
}

TEST (Binaries, TellsNamesOfOneHashApart)
{
    ASSERT_EQ (hashOf ("Aa"), hashOf ("BB"));
    ASSERT_EQ (hashOf ("AaBB"), hashOf ("BBAa"));

    const std::array files { Library::File { "BBAa", bytesOf ("second") },
                             Library::File { "AaBB", bytesOf ("first") } };
    const Library library { files };

    EXPECT_EQ (textOf (library.find ("AaBB")), "first");
    EXPECT_EQ (textOf (library.find ("BBAa")), "second");
    EXPECT_EQ (library.find ("AaAa").data(), nullptr);
}
} // namespace Zn::Binaries
