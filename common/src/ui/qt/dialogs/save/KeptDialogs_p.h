#pragma once

#include "ui/qt/dialogs/shell/ShellInterfaces.h"
#include "ui/qt/MorvaneUiExport.h"

// Internal, not installed.

namespace morvane::ui {

/**
 * Whether the Shell's dialog belongs to a SaveFileWinDialog, which leaves it alive to the end of the process. For those
 * who count what is left over.
 */
MORVANE_UI_EXPORT bool isKeptForSaveFlow(const IFileDialog& dialog);

} // namespace morvane::ui
