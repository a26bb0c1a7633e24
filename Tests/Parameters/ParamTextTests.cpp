#include "Parameters/ParamKinds.h"
#include "Parameters/ParameterText.h"
#include "Parameters/TargetValue.h"
#include "Support/RealTimeGuard.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <locale>
#include <vector>

namespace Zn::Audio
{
namespace
{
struct EveryKind : ParamList
{
    BoolParam enable { *this, "Enable", true };
    IntParam octave { *this, "Octave", { -3, 3 }, 0 };
    FloatParam attack { *this, "Attack", { 0.005f, 1.0f }, 0.005f };
    FloatParam cutoff { *this, "Cutoff", { 10.0f, 12000.0f }, 8000.0f };
    FloatParam resonance { *this, "Resonance", { 0.1f, 3.0f }, 1.0f };
    ChoiceParam quantize { *this, "Quantize", { "4/4", "2/4", "1/4", "1/8", "1/16", "1/32" }, 2 };
    VolumeParam loud { *this, "Loud", 6.0f, -15.0f };
    VolumeParam master { *this, "Master", 3.0f, 0.0f };
};

juce::String textAfter (ParamHolderBase& holder, const juce::String& text)
{
    Parameters::setFromText (holder.getParameter(), text);
    return Parameters::currentTextOf (holder.getParameter());
}

void expectEveryTextToComeBack (ParamHolderBase& holder, double first, double last, const char* unit)
{
    for (auto hundredths = std::ceil (first * 100.0); hundredths <= std::floor (last * 100.0); ++hundredths)
    {
        const auto text = Parameters::twoDecimals (hundredths * 0.01) + unit;
        ASSERT_EQ (textAfter (holder, text), text) << holder.getIdentifier();
    }
}

/** Numbers with a decimal comma and dots between thousands, for as long as it lives. */
class CommaLocale
{
public:
    CommaLocale()
    {
        for (const auto* name : { "de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "fr_FR.utf8" })
            if (std::setlocale (LC_ALL, name) != nullptr)
                break;

        std::locale::global (std::locale (std::locale::classic(), new Commas));
    }

    ~CommaLocale()
    {
        std::locale::global (std::locale::classic());
        std::setlocale (LC_ALL, "C");
    }

    CommaLocale (const CommaLocale&) = delete;
    CommaLocale& operator= (const CommaLocale&) = delete;

private:
    struct Commas : std::numpunct<char>
    {
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
    };
};
} // namespace

TEST (ParamText, EveryTextThatIsShownReadsBackAsItself)
{
    EveryKind params;

    expectEveryTextToComeBack (params.attack, 0.01, 1.0, "");
    expectEveryTextToComeBack (params.resonance, 0.1, 3.0, "");
    expectEveryTextToComeBack (params.cutoff, 10.0, 12000.0, "");
    expectEveryTextToComeBack (params.loud, -99.99, 6.0, " dB");
    expectEveryTextToComeBack (params.master, -99.99, 3.0, " dB");

    EXPECT_EQ (textAfter (params.attack, "0.00"), "0.00") << "limited to 0.005, which shows as this";
    EXPECT_EQ (textAfter (params.loud, "-0.001 dB"), "0.00 dB") << "no minus in front of nothing";
}

TEST (ParamText, StaysTheSameInALocaleWithADecimalComma)
{
    EveryKind params;
    const CommaLocale locale;

    EXPECT_EQ (textAfter (params.cutoff, "7305.27"), "7305.27");
    EXPECT_EQ (textAfter (params.loud, "-7.19 dB"), "-7.19 dB");
    EXPECT_EQ (textAfter (params.octave, "-2"), "-2");
    EXPECT_FLOAT_EQ (params.cutoff.get(), 7305.27f);
}

TEST (ParamText, HostileTextGivesALegalValue)
{
    EveryKind params;

    const auto loudest = VolumeParameter::gainFromDecibels (6.0);
    const std::tuple<const char*, bool, int, float, float> rows[] {
        { "", false, 0, 0.1f, 1.0f },
        { "nan", false, 0, 0.1f, 0.0f },
        { "inf", false, 0, 0.1f, 0.0f },
        { "-inf dB", false, 0, 0.1f, 0.0f },
        { "1e400", false, 0, 0.1f, 0.0f },
        { "-1e400", false, 0, 0.1f, 0.0f },
        { "99999999999", true, 3, 3.0f, loudest },
        { "-99999999999", false, -3, 0.1f, 0.0f },
        { "1e39", true, 3, 3.0f, loudest },
        { "\xe2\x99\xaf \xd9\xa3", false, 0, 0.1f, 1.0f },
        { "  +1.5x", true, 2, 1.5f, 1.18850223f },
        { "-100 dB", false, -3, 0.1f, 0.0f }
    };

    for (const auto& [given, enable, octave, resonance, gain] : rows)
    {
        const auto text = juce::String::fromUTF8 (given);

        for (auto& [name, holder] : params.getParams())
            Parameters::setFromText (holder->getParameter(), text);

        EXPECT_EQ (params.enable.get(), enable) << given;
        EXPECT_EQ (params.octave.get(), octave) << given;
        EXPECT_FLOAT_EQ (params.resonance.get(), resonance) << given;
        EXPECT_FLOAT_EQ (params.loud.get(), gain) << given;
        EXPECT_EQ (params.quantize.get(), 0) << given;
    }
}

TEST (VolumeParam, ReadsAsGainAndShowsDecibels)
{
    EveryKind params;

    const std::pair<const char*, float> rows[] { { "-100 dB", 0.0f },    { "-99.99", 1.00115e-05f },
                                                 { "-15", 0.17782795f }, { "-7.19", 0.43701869f },
                                                 { "0", 1.0f },          { "3", 1.41253753f },
                                                 { "6 dB", 1.99526228f } };

    for (const auto& [decibels, gain] : rows)
    {
        Parameters::setFromText (params.loud.getParameter(), decibels);
        EXPECT_NEAR (params.loud.get(), gain, 1e-5f * std::max (gain, 1e-3f)) << decibels;
    }

    EXPECT_EQ (textAfter (params.loud, "-1000 dB"), "-100.00 dB");
}

TEST (VolumeParam, HasMinusTwelveDecibelsInTheMiddle)
{
    EveryKind params;

    const std::tuple<VolumeParam&, const char*, float> rows[] { { params.loud, "-60", 0.0787451f },
                                                                { params.loud, "-12", 0.5f },
                                                                { params.loud, "0", 0.7937005f },
                                                                { params.master, "-30", 0.2176376f },
                                                                { params.master, "0", 0.8705506f } };

    for (const auto& [volume, text, position] : rows)
        EXPECT_NEAR (volume.getParameter().getValueForText (text), position, 1e-5f) << text;

    EXPECT_EQ (params.loud.getParameter().getText (0.75f, 30), "-1.47 dB");
}

TEST (Params, ReadOnTheAudioThreadWithoutLockOrText)
{
    static_assert (std::atomic<float>::is_always_lock_free);
    static_assert (noexcept (std::declval<EveryKind&>().enable.get()));
    static_assert (noexcept (std::declval<EveryKind&>().octave.get()));
    static_assert (noexcept (std::declval<EveryKind&>().cutoff.get()));
    static_assert (noexcept (std::declval<EveryKind&>().quantize.get()));
    static_assert (noexcept (std::declval<EveryKind&>().loud.get()));

    const EveryKind params;
    auto sum = 0.0f;

    {
        const Zn::Tests::ExpectRealTimeSafe guard { "reading parameters" };
        sum += float (params.enable.get()) + float (params.octave.get()) + params.cutoff.get();
        sum += float (params.quantize.get()) + params.master.get();
    }

    EXPECT_FLOAT_EQ (sum, 1.0f + 0.0f + 8000.0f + 2.0f + 1.0f);
}
} // namespace Zn::Audio
