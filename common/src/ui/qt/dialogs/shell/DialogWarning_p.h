// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/ShellInterfaces.h"

#include <QString>

#include <string>

class QWidget;

namespace morvane::ui {

/** The reason why a choice was refused, UTF-8, or a general text if it is empty. */
QString refusalText(const std::string& reason);

/** Shows a warning above a window and returns when the user has read it. The window may be destroyed meanwhile. */
void showWarning(QWidget* above, const QString& title, const QString& text);

/**
 * Shows a warning above a running dialog and returns when the user has read it. The dialog takes no input meanwhile.
 *
 * @param parent the owner of the dialog; may be null
 */
void showDialogWarning(IFileDialog& dialog, QWidget* parent, const QString& title, const QString& text);

} // namespace morvane::ui
