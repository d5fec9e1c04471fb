// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/Shell.h"
#include "ui/qt/dialogs/shell/ShellText_p.h"

#include <string>

namespace morvane::ui {

/** Converts UTF-8 to text for the Shell, with the host's utf8ToWideString(). */
ShellString shellText(const std::string& utf8);

/** Converts a text that @p shell has returned, and frees it. Null gives an empty text. */
QString takeText(Shell& shell, LPWSTR text);

/** The item's path in the platform's form. Empty if it cannot be read or the item is not in the file system. */
QString nativePathOf(Shell& shell, IShellItem& item);

} // namespace morvane::ui
