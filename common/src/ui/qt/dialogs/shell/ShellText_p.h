#pragma once

#include "ui/qt/dialogs/shell/ShellInterfaces.h"
#include "ui/qt/MorvaneUiExport.h"

#include <QString>

#include <string>

namespace morvane::ui {

/** Text for the Shell: UTF-16 on every platform. */
using ShellString = std::basic_string<WCHAR>;

/**
 * The Shell's text for wide text, whose units are UTF-16 where `wchar_t` has 16 bits and code points otherwise. What is
 * no character, a lone surrogate or a value above 0x10FFFF, becomes U+FFFD. A NUL stays where it is.
 */
MORVANE_UI_EXPORT ShellString toShellString(const std::wstring& text);
MORVANE_UI_EXPORT ShellString toShellString(const QString& text);

/** The text up to its NUL; null gives an empty text. */
MORVANE_UI_EXPORT QString toQString(const WCHAR* text);
MORVANE_UI_EXPORT QString toQString(const ShellString& text);

/** The text up to its NUL as UTF-8, a lone surrogate as U+FFFD; null gives an empty text. */
MORVANE_UI_EXPORT std::string toUtf8(const WCHAR* text);

} // namespace morvane::ui
