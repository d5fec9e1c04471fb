// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/MorvaneUiExport.h"

#include <Qt>

namespace morvane::ui {

/**
 * Shows a cursor shape for the whole application as long as the guard exists.
 *
 * @snippet 18-wait-cursor/main.cpp work
 *
 * The cursors are on a stack. Nested guards must be destroyed in the reverse order of their creation, as automatic
 * variables are. The destructor always removes the top of the stack. GUI thread only, while the application object
 * exists.
 */
class MORVANE_UI_EXPORT OverrideCursor
{
public:
    /** Pushes @p shape onto the stack. */
    explicit OverrideCursor(Qt::CursorShape shape);
    /** Removes the top of the stack. */
    ~OverrideCursor();
    OverrideCursor(const OverrideCursor&) = delete;
    OverrideCursor& operator=(const OverrideCursor&) = delete;
};

} // namespace morvane::ui
