// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/ComPtr.h"

#include <QString>
#include <QStringList>

namespace morvane::ui {

/** An item of the file system. It need not exist. @p path is absolute, with Qt's separators. */
ComPtr<IShellItem> makeShellItem(const QString& path);

/** The items for @p paths, in this order. There must be at least one path. */
ComPtr<IShellItemArray> makeShellItemArray(const QStringList& paths);

/** The path of an item of any Shell, with Qt's separators. Empty for null and for items outside the file system. */
QString pathOfShellItem(IShellItem* item);

/**
 * The absolute path for a parsing name. The name may have both kinds of separators, and may be relative to the current
 * directory. In an absolute name of an existing file, a backslash is part of the name.
 */
QString pathOfParsingName(const QString& name);

} // namespace morvane::ui
