// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "testing/RecordingShell.h"

namespace morvane::test {

/** Creates an item or an array of items of a RecordingShell. Paths are absolute, with Qt's separators. */
ui::ComPtr<IShellItem> makeRecordingItem(RecordingShell& shell, const QString& path);
ui::ComPtr<IShellItemArray> makeRecordingArray(RecordingShell& shell, const QStringList& paths);

/** The path of an item. Reading it is not recorded. Empty for null and for items of another Shell. */
QString pathOf(RecordingShell& shell, IShellItem* item);

std::string nameOfIid(REFIID iid);
std::string quoted(LPCWSTR text);

} // namespace morvane::test
