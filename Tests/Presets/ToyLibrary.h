#pragma once

#include "Foundation/Singleton.h"
#include "Presets/Base.h"
#include "Presets/PresetFile.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace Zn::Presets::Tests
{
/** A folder of its own for each test, gone at its end, and the singletons of a fresh process. */
class LibraryTest : public ::testing::Test
{
protected:
    ~LibraryTest() override { root.deleteRecursively(); }

    const Singleton::UserToken singletons;
    const juce::File root =
        juce::File::getSpecialLocation (juce::File::tempDirectory).getChildFile (juce::Uuid().toString());
};

struct ZipEntry
{
    juce::String path, content;
};

/** An archive as a program carries it. */
class Zip
{
public:
    Zip (std::initializer_list<ZipEntry> entries)
    {
        juce::ZipFile::Builder builder;

        for (const auto& [path, content] : entries)
            builder.addEntry (
                new juce::MemoryInputStream (content.toRawUTF8(), content.getNumBytesAsUTF8(), true),
                9,
                path,
                juce::Time());

        juce::MemoryOutputStream stream (bytes, false);
        builder.writeToStream (stream, nullptr);
    }

    Binaries::Bytes get() const
    {
        return { static_cast<const std::byte*> (bytes.getData()), bytes.getSize() };
    }

    char* data() { return static_cast<char*> (bytes.getData()); }

private:
    juce::MemoryBlock bytes;
};

/** A kind of preset with two members, all below one folder. */
class Toy : public Base
{
public:
    explicit Toy (juce::File rootToUse, juce::String productToUse = "Toy")
        : root (std::move (rootToUse)), product (std::move (productToUse))
    {}

    Version getMinimumVersion() const override { return { 0, 5, 3 }; }
    juce::File getUserFolder() const override { return root.getChildFile ("User"); }
    juce::String getProduct() const override { return product; }
    juce::File getDevelopmentFolder() const override { return root.getChildFile ("Dev"); }
    juce::File getFactoryFolder() const override { return root.getChildFile ("Factory"); }
    juce::File getDefaultPresetFile() const override
    {
        return getContentFolder().getChildFile ("Basics/Welcome.json");
    }

    /** What the program carries. */
    void carry (const Zip& zip)
    {
        const Binaries::Library::File file { "FactoryPresets.zip", zip.get() };
        archives = Binaries::Library ({ &file, 1 });
    }

    std::int32_t steps = 16;
    double gain = 0.5;

protected:
    const Binaries::Library& getArchives() const override { return archives; }

    void reflectMembers (Reflector& r) override
    {
        r.add ("steps", steps);
        r.add ("gain", gain);
    }

private:
    juce::File root;
    juce::String product;
    Binaries::Library archives;
};

/** A preset's text; members as they stand in a file, each with a comma behind it. */
inline juce::String presetText (const juce::String& id, const juce::String& members = {})
{
    return "{" + members + "\"id\":\"" + id + R"(","name":"Init","product":"Toy","version":"0.7.3"})";
}

inline void write (const juce::File& file, const std::string& content)
{
    file.getParentDirectory().createDirectory();
    std::ofstream stream (file.getFullPathName().toStdString());
    stream << content;
    EXPECT_TRUE (stream.good()) << file.getFullPathName();
}

inline std::vector<juce::String> namesOf (const std::vector<PresetEntry>& entries)
{
    std::vector<juce::String> names;

    for (const auto& entry : entries)
        names.push_back (entry.file.getFileNameWithoutExtension());

    return names;
}
} // namespace Zn::Presets::Tests
