#pragma once

#include <functional>

namespace Zn
{
/** What is called when something has happened. The audio thread may call one, never copy or assign one. */
using CallbackFunc = std::function<void()>;

/** Calls `first`, then `second`; an empty one is left out. */
CallbackFunc chainFunctions (CallbackFunc first, CallbackFunc second);
} // namespace Zn
