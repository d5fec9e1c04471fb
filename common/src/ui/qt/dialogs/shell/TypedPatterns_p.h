// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

namespace morvane::ui {

/**
 * The patterns of a typed wildcard. They are separated by semicolons. Blanks separate them only if each piece is a
 * wildcard, because a name may contain blanks. `*.*` means every file.
 */
QStringList patternsOfTypedText(const QString& text);

} // namespace morvane::ui
