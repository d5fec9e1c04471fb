#pragma once

#include "ui/qt/dialogs/shell/Shell.h"
#include "ui/qt/dialogs/shell/ShellText_p.h"

#include <string>

namespace morvane::ui {

/** The Shell's text for UTF-8, by the host's own conversion. */
ShellString shellText(const std::string& utf8);

/** The text that @p shell has returned, which is freed; empty for null. */
QString takeText(Shell& shell, LPWSTR text);

/** The path in the platform's form; empty when it cannot be read or the item lies outside the file system. */
QString nativePathOf(Shell& shell, IShellItem& item);

} // namespace morvane::ui
