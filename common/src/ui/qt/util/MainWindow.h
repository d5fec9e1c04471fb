// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/MorvaneUiExport.h"

class QMainWindow;

namespace morvane::ui {

/**
 * Returns the application's main window: the first QMainWindow in `QApplication::topLevelWidgets()`, visible or not.
 *
 * The result is cached for the whole process. Later calls return it without a new search, **even after the window was
 * destroyed**: the pointer then dangles. An application that replaces its main window must call this function with
 * @p forceSearch after it created the new one.
 *
 * @param forceSearch whether to search again. If the search finds nothing, the cached pointer stays, even if it
 *                    dangles.
 * @return the main window; null if no search has found one yet
 *
 * GUI thread only.
 *
 * @snippet 20-find-the-main-window/main.cpp find
 */
MORVANE_UI_EXPORT QMainWindow* findMainWindow(bool forceSearch);

} // namespace morvane::ui
