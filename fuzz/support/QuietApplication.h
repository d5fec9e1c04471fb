// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

class QString;

namespace morvane::fuzz {

/**
 * Makes a QApplication without a screen at the first call and silences Qt's log. Settings and caches are in a temporary
 * directory, which is removed at the end of the process.
 */
void startQuietApplication();

/** The temporary directory. */
QString scratchDirectory();

} // namespace morvane::fuzz
