#pragma once

#include "ui/qt/dialogs/shell/ShellInterfaces.h"

namespace morvane::ui {

/**
 * Makes an open or save dialog on Qt's widgets, with one reference, which the caller owns.
 * @param alwaysWidgets never the desktop's own dialog
 */
IFileDialog* makeWidgetFileDialog(bool saving, bool alwaysWidgets);

} // namespace morvane::ui
