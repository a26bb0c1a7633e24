#include "Presets/Reflection/Reflector.h"

#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <optional>
#include <stdexcept>

namespace Zn
{
namespace
{
/** A document of one level. */
class FlatReflector : public Reflector
{
public:
    explicit FlatReflector (ReflectedValue value = std::monostate(), bool shouldLoad = true)
        : Reflector (ReflectorContext::forPresetFile()), held (std::move (value)), loading (shouldLoad)
    {}

    bool isLoading() const override { return loading; }
    void setValue (const std::string&, const ReflectedValue& value) override { held = value; }
    ReflectedValue getValue (const std::string&) const override { return held; }

    ReflectedValue held;

private:
    bool loading;
};

template <typename Field>
Field loaded (const ReflectedValue& value, Field field)
{
    FlatReflector (value).add ("field", field);
    return field;
}

ReflectedValue integer (std::int64_t value)
{
    return value;
}

ReflectedValue text (const char* value)
{
    return std::string (value);
}

template <typename Exception, typename Field>
void expectRefusal (const ReflectedValue& value, const std::string& message)
{
    try
    {
        loaded (value, Field());
        ADD_FAILURE() << "no exception; expected " << message;
    }
    catch (const Exception& exception)
    {
        EXPECT_EQ (exception.what(), message);
    }
}

const auto none = ReflectedValue (std::monostate());
} // namespace

TEST (Reflector, LeavesEveryKindOfFieldAloneWhenThereIsNoValue)
{
    EXPECT_EQ (loaded (none, true), true);
    EXPECT_EQ (loaded (none, std::int32_t { 7 }), 7);
    EXPECT_EQ (loaded (none, 0.5), 0.5);
    EXPECT_EQ (loaded (none, 0.5f), 0.5f);
    EXPECT_EQ (loaded (none, std::string ("kept")), "kept");
    EXPECT_EQ (loaded (none, juce::String ("kept")), juce::String ("kept"));
    EXPECT_EQ (loaded (none, Version { 1, 2, 3 }), (Version { 1, 2, 3 }));
}

TEST (Reflector, ReadsABooleanFromAnyScalar)
{
    const std::vector<std::pair<ReflectedValue, bool>> table {
        { true, true },         { false, false },        { integer (1), true },
        { integer (0), false }, { integer (-3), false }, { integer (2), true },
        { 0.9, false },         { 1.0, true },           { text ("0"), false },
        { text ("1"), true },   { text ("-5"), false },  { text (" \t+17 bars"), true },
    };

    for (std::size_t row = 0; row < table.size(); ++row)
        for (auto before : { false, true })
            EXPECT_EQ (loaded (table[row].first, before), table[row].second) << "row " << row;
}

TEST (Reflector, ReadsAnIntegerFromAnyScalarWithinItsRange)
{
    constexpr auto highest = std::numeric_limits<std::int32_t>::max();
    constexpr auto lowest = std::numeric_limits<std::int32_t>::min();

    const std::vector<std::pair<ReflectedValue, std::int32_t>> table {
        { integer (-12), -12 },
        { integer (3'000'000'000), highest },
        { integer (-3'000'000'000), lowest },
        { 2.9, 2 },
        { -2.9, -2 },
        { 1e300, highest },
        { true, 1 },
        { text ("12.9"), 12 },
        { text ("-3000000000"), lowest },
        { std::numeric_limits<double>::quiet_NaN(), 0 },
    };

    for (std::size_t row = 0; row < table.size(); ++row)
        EXPECT_EQ (loaded (table[row].first, std::int32_t { 99 }), table[row].second) << "row " << row;
}

TEST (Reflector, ReadsAFractionFromAnyScalar)
{
    const std::vector<std::pair<ReflectedValue, double>> table {
        { integer (3), 3.0 },         { 0.25, 0.25 },         { true, 1.0 },
        { text ("-3.19 dB"), -3.19 }, { text (" +.5"), 0.5 }, { text ("1e3x"), 1000.0 },
        { text ("2e"), 2.0 },         { text ("0,5"), 0.0 },
    };

    for (std::size_t row = 0; row < table.size(); ++row)
        EXPECT_EQ (loaded (table[row].first, 99.0), table[row].second) << "row " << row;

    EXPECT_EQ (loaded (ReflectedValue (1e300), 0.0f), std::numeric_limits<float>::max());
}

TEST (Reflector, RefusesTextThatIsNoNumber)
{
    for (const auto* word : { "", " ", "abc", "-", "+-1", "--1", "nan", "-inf", "." })
    {
        SCOPED_TRACE (word);
        expectRefusal<std::invalid_argument, double> (text (word), "invalid stod argument");
        expectRefusal<std::invalid_argument, float> (text (word), "invalid stod argument");
        expectRefusal<std::invalid_argument, bool> (text (word), "invalid stol argument");
        expectRefusal<std::invalid_argument, std::int32_t> (text (word), "invalid stol argument");
    }

    expectRefusal<std::out_of_range, double> (text ("1e400"), "stod argument out of range");
    expectRefusal<std::out_of_range, bool> (text ("9223372036854775808"), "stol argument out of range");
    expectRefusal<std::out_of_range, std::int32_t> (text ("-9223372036854775809"),
                                                    "stol argument out of range");
}

TEST (Reflector, TakesTextOnlyFromText)
{
    EXPECT_EQ (loaded (text ("Größe"), juce::String()),
               juce::String (juce::CharPointer_UTF8 ("Gr\xc3\xb6\xc3\x9f"
                                                     "e")));

    for (const auto& number : { integer (5), ReflectedValue (0.5), ReflectedValue (true) })
    {
        EXPECT_EQ (loaded (number, std::string ("kept")), "kept");
        EXPECT_EQ (loaded (number, Version { 1, 2, 3 }), (Version { 1, 2, 3 }));
    }
}

TEST (Version, IsThreeNumbersOrNothing)
{
    EXPECT_EQ (Version::fromText ("0.5.3"), (Version { 0, 5, 3 }));
    EXPECT_EQ (Version::fromText ("10.20.30"), (Version { 10, 20, 30 }));
    EXPECT_LT (Version::fromText ("0.9.9"), Version::fromText ("0.10.0"));

    for (const auto* malformed : { "",
                                   "1",
                                   "1.2",
                                   "1.2.",
                                   "1.2.3.4",
                                   "1.2.3 ",
                                   " 1.2.3",
                                   "1.-2.3",
                                   "-0.1.2",
                                   "a.b.c",
                                   "1..3",
                                   "1.2.99999999999",
                                   "+1.2.3" })
        EXPECT_EQ (Version::fromText (malformed), Version()) << malformed;
}
} // namespace Zn
