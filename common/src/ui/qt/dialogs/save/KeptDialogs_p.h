#pragma once

#include "ui/qt/MorvaneUiExport.h"

struct IFileDialog;

namespace morvane::ui {

/**
 * Whether the Shell's dialog belongs to a SaveFileWinDialog, which never deletes it. Used by tests that count objects
 * that were not released.
 */
MORVANE_UI_EXPORT bool isKeptForSaveFlow(const IFileDialog& dialog);

} // namespace morvane::ui
