#pragma once

#include "ui/qt/MorvaneUiExport.h"

#include <QCursor>

namespace morvane::ui {

/**
 * Suspends the application's override cursor for as long as the guard lives, to show a question in the middle of a long
 * operation, say.
 *
 * @snippet 18-wait-cursor/main.cpp question
 *
 * Only the top of the stack of override cursors is taken off: with two of them, the lower one shows. Everything put on
 * the stack during the guard's life must be taken off before it ends. GUI thread only, while the application object
 * exists.
 */
class MORVANE_UI_EXPORT OverrideCursorRestorer
{
public:
    /** Takes the top off the stack and remembers it. Meant for times when an override cursor is active; without one,
     * the guard does nothing, neither now nor when it ends. */
    OverrideCursorRestorer();
    /** Puts the remembered cursor back on the stack. */
    ~OverrideCursorRestorer();
    OverrideCursorRestorer(const OverrideCursorRestorer&) = delete;
    OverrideCursorRestorer& operator=(const OverrideCursorRestorer&) = delete;

private:
    QCursor m_cursor;
    bool m_wasActive = false;
};

} // namespace morvane::ui
