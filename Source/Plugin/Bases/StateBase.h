#pragma once

#include "Presets/Base.h"
#include "Presets/Screen.h"

namespace Zn::Audio::Plugin
{
/** What a plug-in remembers is itself a preset, which a project keeps together with the size of the window. */
class StateBase : public Presets::Base
{
public:
    virtual Presets::Screen& getScreen() noexcept = 0;

protected:
    /** `Screen`, which a preset file leaves out. */
    void reflectExtra (Reflector& r) override
    {
        if (r.isForHostChunk())
            r.addChild ("Screen", getScreen());
    }
};
} // namespace Zn::Audio::Plugin
