#include "Presets/Reflection/JsonText.h"
#include "Presets/Reflection/Loader.h"
#include "Presets/Reflection/Saver.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace Zn::Json
{
namespace
{
using nlohmann::json;

struct Step
{
    double start = 0.5;
    std::int32_t row = 60;

    void reflect (Reflector& r)
    {
        r.add ("start", start);
        r.add ("row", row);
    }

    bool operator== (const Step&) const = default;
};

struct Shape
{
    virtual ~Shape() = default;
    virtual void reflect (Reflector& r) = 0;
};

struct Circle : Shape
{
    double radius = 1.0;
    void reflect (Reflector& r) override { r.add ("radius", radius); }
};

struct Square : Shape
{
    double side = 1.0;
    void reflect (Reflector& r) override { r.add ("side", side); }
};

struct Pattern
{
    bool looping = false;
    juce::String name;
    Version version { 0, 8, 0 };
    Step first;
    std::vector<Step> steps;
    std::vector<std::unique_ptr<Step>> owned;
    std::unique_ptr<Shape> shape;

    void reflect (Reflector& r)
    {
        r.add ("looping", looping);
        r.add ("name", name);
        r.add ("version", version);
        r.addChild ("First", first);
        r.addChild ("Steps", ChildContainerSerializer (steps));
        r.addChild ("Owned", ChildContainerSerializer (owned));
        Serializing::addPoly<Circle> (r, "Circle", shape)
            || Serializing::addPoly<Square> (r, "Square", shape);
    }
};

constexpr auto context = ReflectorContext::forPresetFile();

void loadText (Pattern& pattern, const std::string& text)
{
    auto document = json::parse (text);
    load (pattern, document, context);
}
} // namespace

TEST (Json, LoadsWhatItHasSaved)
{
    Pattern pattern;
    pattern.looping = true;
    pattern.name = juce::String (juce::CharPointer_UTF8 ("\xc3\x84rger \"2\""));
    pattern.version = { 1, 2, 3 };
    pattern.first = { 0.1, -3 };
    pattern.steps = { { 0.25, 1 }, { 1.0 / 3.0, 2 } };
    pattern.owned.push_back (std::make_unique<Step> (Step { 7.0, 8 }));
    pattern.shape = std::make_unique<Square>();

    const auto document = save (pattern, context);
    auto fromText = parse (toText (document, 4));
    EXPECT_EQ (fromText, document);

    Pattern loaded;
    load (loaded, fromText, context);
    EXPECT_EQ (loaded.name, pattern.name);
    EXPECT_EQ (loaded.steps, pattern.steps);
    EXPECT_EQ (save (loaded, context), document);
}

TEST (Json, SavesSortedNestedDocuments)
{
    Pattern pattern;
    pattern.name = "Init";
    pattern.steps = { { 0.25, 1 } };
    pattern.shape = std::make_unique<Circle>();

    EXPECT_EQ (toText (save (pattern, context)),
               R"({"Circle":{"radius":1.0},"First":{"row":60,"start":0.5},"Owned":null,)"
               R"("Steps":[{"row":1,"start":0.25}],"looping":false,"name":"Init","version":"0.8.0"})");
}

TEST (Json, LeavesAloneWhatADocumentOmitsOrHoldsInAnotherForm)
{
    for (const auto* text : { "{}",
                              "[]",
                              "null",
                              "5",
                              R"({ "Unknown": 1 })",
                              R"({ "First": 5, "looping": {}, "name": [], "version": null })",
                              R"({ "First": [], "looping": null, "name": 3, "version": 1.5 })" })
    {
        Pattern pattern;
        pattern.looping = true;
        pattern.name = "kept";
        pattern.version = { 1, 2, 3 };
        pattern.first = { 0.75, 11 };
        pattern.steps = { {}, {} };
        pattern.shape = std::make_unique<Circle>();
        const auto before = save (pattern, context);

        pattern.shape = std::make_unique<Circle>();
        loadText (pattern, text);
        EXPECT_EQ (save (pattern, context), before) << text;
    }
}

TEST (Json, ResizesAContainerAndReadsItsElementsInPlace)
{
    struct Row
    {
        const char* text;
        std::vector<Step> expected;
    };

    const Step old { 0.75, 11 };

    const std::array<Row, 6> table { {
        { R"({ "Steps": [{ "row": 1 }, { "row": 2 }] })", { { 0.75, 1 }, { 0.75, 2 } } },
        { R"({ "Steps": [{}, {}, {}, { "start": 4 }] })", { old, old, old, { 4.0, 60 } } },
        { R"({ "Steps": [null, 7] })", { old, old } },
        { R"({ "Steps": [] })", {} },
        { R"({ "Steps": null })", {} },
        { R"({ "Steps": { "b": { "row": 2 }, "a": { "row": 1 } } })", { { 0.75, 1 }, { 0.75, 2 } } },
    } };

    for (const auto& row : table)
    {
        Pattern pattern;
        pattern.steps.assign (3, old);
        loadText (pattern, row.text);
        EXPECT_EQ (pattern.steps, row.expected) << row.text;
    }
}

TEST (Json, ClearsAContainerFirstOnRequestAndKeepsToItsLargestSize)
{
    struct Bounded
    {
        std::vector<Step> steps { 4, Step { 0.75, 11 } };
        void reflect (Reflector& r) { r.addChild ("Steps", ChildContainerSerializer (steps, true, 2)); }
    };

    Bounded bounded;
    auto document = json::parse (R"({ "Steps": [{ "row": 1 }, {}, { "row": 3 }] })");
    load (bounded, document, context);
    EXPECT_EQ (bounded.steps, (std::vector<Step> { { 0.5, 1 }, {} }));
}

TEST (Json, ReplacesAPolymorphicMemberByTheFirstTypeThatIsPresent)
{
    Pattern pattern;
    loadText (pattern, R"({ "Square": { "side": 3 }, "Circle": { "radius": 2 } })");

    const auto* circle = dynamic_cast<Circle*> (pattern.shape.get());
    ASSERT_NE (circle, nullptr);
    EXPECT_EQ (circle->radius, 2.0);

    loadText (pattern, R"({ "Square": {} })");
    EXPECT_NE (dynamic_cast<Square*> (pattern.shape.get()), nullptr);
}

TEST (Json, PassesTheContextToEveryNode)
{
    struct Inner
    {
        std::int32_t hostOnly = 5;

        void reflect (Reflector& r)
        {
            if (r.isForHostChunk())
                r.add ("hostOnly", hostOnly);
        }
    };

    struct Outer
    {
        std::vector<Inner> inners { 1 };
        void reflect (Reflector& r) { r.addChild ("Inners", ChildContainerSerializer (inners)); }
    };

    Outer outer;
    auto chunk = save (outer, ReflectorContext::forHostChunk());
    EXPECT_EQ (chunk, json::parse (R"({ "Inners": [{ "hostOnly": 5 }] })"));
    EXPECT_EQ (save (outer, context), json::parse (R"({ "Inners": [null] })"));

    outer.inners.front().hostOnly = 6;
    load (outer, chunk, context);
    EXPECT_EQ (outer.inners.front().hostOnly, 6);
    load (outer, chunk, ReflectorContext::forUndo());
    EXPECT_EQ (outer.inners.front().hostOnly, 5);
}

TEST (Loader, KeepsUnsignedNumbersBeyondItsRangePositive)
{
    auto document = json::parse (R"({ "row": 18446744073709551615 })");
    Step step;
    load (step, document, context);
    EXPECT_EQ (step.row, std::numeric_limits<std::int32_t>::max());
}

TEST (JsonText, ParsesUpToTheFirstNul)
{
    using namespace std::string_view_literals;

    EXPECT_EQ (parse ("{\"a\": 1}\n\0rubbish"sv), json::parse (R"({ "a": 1 })"));
    EXPECT_EQ (parse ("{\"a\": 1}\n\0"sv, 9), json::parse (R"({ "a": 1 })"));
}

TEST (JsonText, GivesNullForWhatIsNoDocument)
{
    using namespace std::string_view_literals;

    for (auto text :
         { ""sv, "\0"sv, "{"sv, "{\"a\": 1"sv, "{} {}"sv, "\"\xff\""sv, "nan"sv, "[1e400]"sv, "\"a\0b\""sv })
        EXPECT_TRUE (parse (text).is_null()) << text;

    EXPECT_TRUE (parse ("[1, 2, 3]", 8).is_null()) << "longer than allowed";
}

TEST (JsonText, RefusesDeepNestingBeforeItCanHurt)
{
    const auto nested = [] (int depth, const std::string& inside = {}) {
        const auto count = static_cast<std::size_t> (depth);
        return std::string (count, '[') + inside + std::string (count, ']');
    };

    EXPECT_FALSE (parse (nested (deepestNesting)).is_null());
    EXPECT_FALSE (parse (nested (deepestNesting, R"("\"[[[{{{")")).is_null()) << "brackets in a string";
    EXPECT_TRUE (parse (nested (deepestNesting + 1)).is_null());
    EXPECT_TRUE (parse (nested (deepestNesting, R"("\\", [])")).is_null())
        << "the string ends before the bracket";
    EXPECT_TRUE (parse (nested (200000)).is_null());
    EXPECT_TRUE (parse (std::string (1000000, '{')).is_null());
}

TEST (JsonText, ReplacesInvalidUtf8WhenWriting)
{
    EXPECT_EQ (toText (json ("a\xff")), "\"a\xef\xbf\xbd\"");
}
} // namespace Zn::Json
