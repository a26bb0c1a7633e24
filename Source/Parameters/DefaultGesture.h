#pragma once

#include "Parameters/Parameter.h"

#include <atomic>

namespace Zn::Parameters
{
/** A parameter that the host knows nothing of: a gesture is a flag, and nothing else happens. */
class DefaultGesture : public Parameter
{
public:
    bool isGestureActive() const override { return gesture; }
    void beginGesture() override { gesture = true; }
    void endGesture() override { gesture = false; }

private:
    bool gesture = false;
};

/** The same for a value that another thread may read. */
class DefaultAtomic : public Parameter
{
public:
    bool isGestureActive() const override { return gesture.load(); }
    void beginGesture() override { gesture = true; }
    void endGesture() override { gesture = false; }

private:
    std::atomic<bool> gesture { false };
};
} // namespace Zn::Parameters
