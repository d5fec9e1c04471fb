// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/ShellInterfaces.h"
#include "ui/qt/MorvaneUiExport.h"

#include <QString>

#include <string>

namespace morvane::ui {

/** Text for the Shell: UTF-16 on every platform. */
using ShellString = std::basic_string<WCHAR>;

/**
 * Converts wide text to text for the Shell. The units of the wide text are UTF-16 if `wchar_t` has 16 bits, and code
 * points otherwise. A lone surrogate or a value above 0x10FFFF becomes U+FFFD. NUL characters are kept.
 */
MORVANE_UI_EXPORT ShellString toShellString(const std::wstring& text);
MORVANE_UI_EXPORT ShellString toShellString(const QString& text);

/** The text up to the first NUL. Null gives an empty text. */
MORVANE_UI_EXPORT QString toQString(const WCHAR* text);
MORVANE_UI_EXPORT QString toQString(const ShellString& text);

/** The text up to the first NUL, as UTF-8. A lone surrogate becomes U+FFFD. Null gives an empty text. */
MORVANE_UI_EXPORT std::string toUtf8(const WCHAR* text);

} // namespace morvane::ui
