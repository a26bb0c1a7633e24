#pragma once

#include "Parameters/BoolRef.h"

namespace Zn::Audio::Plugins::Vornel
{
/** Whether what is drawn keeps to the grid. */
class SnapParam : public Parameters::BoolRef
{
public:
    explicit SnapParam (bool& snap) : BoolRef (snap, "Snap", true) {}
};
} // namespace Zn::Audio::Plugins::Vornel
