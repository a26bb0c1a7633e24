#pragma once

#include <array>
#include <span>
#include <string_view>

namespace Zn::GUI
{
/** One way to use the plug-in: a picture of the way that notes take, and what to do for it. */
struct RoutingCase
{
    struct Box
    {
        const char* name;
        const char* detail;
        std::string_view colour;
    };

    /** What the button does that spares a step. */
    enum class Offer
    {
        synthOn,
        synthOff,
        internalClock,
        panic
    };

    const char* title;
    const char* detail;
    std::array<Box, 3> boxes;
    std::array<const char*, 2> arrows;
    std::array<const char*, 5> steps; // null: no more
    const char* offerText;
    Offer offer;
};

std::span<const RoutingCase> routingCases();
} // namespace Zn::GUI
