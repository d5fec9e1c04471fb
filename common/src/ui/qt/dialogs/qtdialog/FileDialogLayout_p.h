// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

class QFileDialog;

namespace morvane::ui {

/**
 * Makes the lists of a file dialog wide enough for their contents: the sidebar for its places, and the columns of size,
 * type and date for their texts. The names get the rest of the window, which keeps its size. The widths are set when
 * the lists are shown and again when the first folder was read. Later changes by the user stay. Does nothing to a
 * dialog that the desktop draws. May be called again.
 */
void showListsWhole(QFileDialog& dialog);

/** Hides the row with the types in a dialog for directories, and shows it in other dialogs. */
void showTypesOfFilesOnly(const QFileDialog& dialog);

} // namespace morvane::ui
