#pragma once

#include "Foundation/CallbackFunc.h"
#include "Parameters/BoolRef.h"

namespace Zn::Audio::Plugins::Vornel
{
/** Whether what is drawn keeps to the grid. Tells of each change. */
class SnapParam : public Parameters::BoolRef
{
public:
    SnapParam (bool& snapToUse, CallbackFunc changedToUse)
        : BoolRef (snapToUse, "Snap", true), changed (std::move (changedToUse))
    {}

    void setBool (bool newValue) override
    {
        const auto isChange = newValue != getBool();
        BoolRef::setBool (newValue);

        if (isChange)
            changed();
    }

private:
    const CallbackFunc changed;
};
} // namespace Zn::Audio::Plugins::Vornel
