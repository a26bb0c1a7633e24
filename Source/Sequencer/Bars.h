#pragma once

#include "Presets/Reflection/Reflector.h"

#include <vector>

namespace Zn::Sequencer
{
constexpr double longestTime = 65536.0; // quarter notes; nothing in a pattern lies or lasts beyond
constexpr int maxBars = 256;            // in one musical time; a file's surplus is ignored

/** One bar, `num` notes of a `denum`-th each: 6/8 is { 6, 8 }. */
struct Bar
{
    int num = 4, denum = 4; // kept as loaded; a bar with one of them below 1 has no length

    /** Quarter notes. */
    double length() const noexcept;

    void reflect (Reflector& r);

    bool operator== (const Bar&) const = default;
};

/** A length in musical time: bars one after another. */
struct Bars
{
    std::vector<Bar> list { Bar {} };

    /** Quarter notes from the first bar's start to the last one's end, at most longestTime. */
    double length() const noexcept;

    /** An array under the key `Bars`; the owner puts it into an object of its own, usually `Time`. */
    void reflect (Reflector& r);

    bool operator== (const Bars&) const = default;
};
} // namespace Zn::Sequencer
