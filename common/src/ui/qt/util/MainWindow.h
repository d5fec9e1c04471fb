#pragma once

#include "ui/qt/MorvaneUiExport.h"

class QMainWindow;

namespace morvane::ui {

/**
 * The application's main window: the first QMainWindow among `QApplication::topLevelWidgets()`, shown or not.
 *
 * The window that was found is remembered for the whole process and returned from then on without looking again, **even
 * after it was destroyed**: the pointer then dangles. An application that replaces its main window calls this with
 * @p forceSearch once the new one exists.
 *
 * @param forceSearch whether to look again. A search that finds nothing leaves the remembered window, dangling or not.
 * @return null only as long as no search has found a main window.
 *
 * GUI thread only.
 *
 * @snippet 20-find-the-main-window/main.cpp find
 */
MORVANE_UI_EXPORT QMainWindow* findMainWindow(bool forceSearch);

} // namespace morvane::ui
