// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/native/NativeText_p.h"

#include "host/StringConversion.h"

namespace morvane::ui {

ShellString shellText(const std::string& utf8)
{
    return toShellString(utf8ToWideString(utf8));
}

QString takeText(Shell& shell, LPWSTR text)
{
    const QString result = toQString(text);
    shell.coTaskMemFree(text);
    return result;
}

QString nativePathOf(Shell& shell, IShellItem& item)
{
    LPWSTR path = nullptr;
    item.GetDisplayName(SIGDN_FILESYSPATH, &path);
    return takeText(shell, path);
}

} // namespace morvane::ui
