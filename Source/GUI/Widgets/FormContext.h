#pragma once

#include "GUI/Widgets/EditorContext.h"

namespace Zn::GUI
{
/** The same editor for what is no part of the project, such as settings and questions: what is chosen there leaves no
    step of undo. Thread: message.
*/
struct FormContext
{
    explicit FormContext (const EditorContext& editor)
        : context { .processor = editor.processor,
                    .canvas = editor.canvas,
                    .settings = editor.settings,
                    .edits = edits,
                    .overlay = editor.overlay,
                    .learning = editor.learning,
                    .polls = editor.polls,
                    .shownSlot = editor.shownSlot,
                    .actions = editor.actions,
                    .keysInUse = editor.keysInUse,
                    .draggedOut = editor.draggedOut }
    {}

    Undo::Interface forgetful;
    Edits edits { forgetful, [] {} };
    EditorContext context;
};
} // namespace Zn::GUI
