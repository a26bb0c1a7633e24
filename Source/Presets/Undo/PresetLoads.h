#pragma once

#include "Foundation/Events/Listener.h"
#include "Presets/Base.h"
#include "Presets/Undo/Interface.h"

namespace Zn::Undo
{
/** Makes an edit of each load of a library's presets, whoever asks for it. Must not outlive either. Thread: message. */
class PresetLoads
{
public:
    PresetLoads (Interface& undoToUse, Presets::Base& libraryToFollow)
        : undo (undoToUse), library (libraryToFollow)
    {}

private:
    void keepLoaded()
    {
        undo.markChanged();
        undo.end ("Load " + library.getName());
    }

    Interface& undo;
    Presets::Base& library;
    const Events::Listener beginning { library.aboutToLoad, [this] { undo.begin(); } };
    const Events::Listener ending { library.loaded, [this] { keepLoaded(); } };
};
} // namespace Zn::Undo
