#pragma once

#include <gmock/gmock.h>

namespace Zn::Tests
{
/** For Pointwise over samples: as expected, or one later. What falls between the last sample of a block and the first
    of the next is heard at the latter.
*/
inline auto isAtMostOneLate()
{
    return testing::Truly ([] (const auto& pair) {
        const auto late = std::get<0> (pair) - std::get<1> (pair);
        return late == 0 || late == 1;
    });
}
} // namespace Zn::Tests
