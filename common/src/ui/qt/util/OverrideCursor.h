#pragma once

#include "ui/qt/MorvaneUiExport.h"

#include <Qt>

namespace morvane::ui {

/**
 * Shows a cursor shape over the whole application for as long as the guard lives.
 *
 * @snippet 18-wait-cursor/main.cpp work
 *
 * The shapes are a stack: guards that nest must end in the reverse order of their creation, as automatic variables do.
 * Ending one takes off whatever is on top. GUI thread only, while the application object exists.
 */
class MORVANE_UI_EXPORT OverrideCursor
{
public:
    /** Puts @p shape on top of the stack. */
    explicit OverrideCursor(Qt::CursorShape shape);
    /** Takes the top off the stack. */
    ~OverrideCursor();
    OverrideCursor(const OverrideCursor&) = delete;
    OverrideCursor& operator=(const OverrideCursor&) = delete;
};

} // namespace morvane::ui
