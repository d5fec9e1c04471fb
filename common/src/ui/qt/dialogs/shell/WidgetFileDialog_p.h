// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/ShellInterfaces.h"

namespace morvane::ui {

/**
 * Creates an open or save dialog on top of QFileDialog. The caller owns its one reference.
 * @param alwaysWidgets whether the desktop's own dialog is never used
 */
IFileDialog* makeWidgetFileDialog(bool saving, bool alwaysWidgets);

} // namespace morvane::ui
