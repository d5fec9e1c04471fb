// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

class QFileDialog;

namespace morvane::ui {

/**
 * Makes the lists of a file dialog accessible: Tab stops at the list of types, and the lists of folders and of types
 * have the labels beside them as names. Does nothing to a dialog that the desktop draws. May be called again.
 */
void makeListsReachable(const QFileDialog& dialog);

} // namespace morvane::ui
