#include "Foundation/CallbackFunc.h"

#include <utility>

namespace Zn
{
CallbackFunc chainFunctions (CallbackFunc first, CallbackFunc second)
{
    if (! first)
        return second;

    if (! second)
        return first;

    return [first = std::move (first), second = std::move (second)] {
        first();
        second();
    };
}
} // namespace Zn
