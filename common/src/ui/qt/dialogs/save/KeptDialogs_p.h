// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/MorvaneUiExport.h"

struct IFileDialog;

namespace morvane::ui {

/**
 * Whether the Shell's dialog belongs to a SaveFileWinDialog, which never deletes it. Used by tests that count objects
 * that were not released. The list is in SaveFileWinDialog.cpp, so that each process has only one.
 */
MORVANE_UI_EXPORT bool isKeptForSaveFlow(const IFileDialog& dialog);

} // namespace morvane::ui
