#pragma once

#include "ui/qt/dialogs/shell/ComPtr.h"

#include <QString>
#include <QStringList>

namespace morvane::ui {

/** An item of the file system, existing or not; @p path is absolute, with Qt's separators. */
ComPtr<IShellItem> makeShellItem(const QString& path);

/** The items for @p paths, at least one, in that order. */
ComPtr<IShellItemArray> makeShellItemArray(const QStringList& paths);

/** The path of any Shell's item with Qt's separators; empty for null and for items outside the file system. */
QString pathOfShellItem(IShellItem* item);

/**
 * The absolute path that a parsing name means: both separators are understood, and a relative name starts at the
 * current directory. A backslash in the name of a file that exists is part of the name.
 */
QString pathOfParsingName(const QString& name);

} // namespace morvane::ui
