// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/native/NativeResults_p.h"

#include "ui/qt/dialogs/native/NativeText_p.h"
#include "ui/qt/dialogs/shell/TypedNames_p.h"

#include <QDir>

namespace morvane::ui {

NativeResults::NativeResults(Shell& shell, const ComPtr<IFileDialog>& dialog) : m_shell(shell), m_dialog(dialog) {}

QStringList NativeResults::read(const std::optional<std::string>& typedName) const
{
    FILEOPENDIALOGOPTIONS options = 0;
    m_dialog->GetOptions(&options);
    if ((options & FOS_ALLOWMULTISELECT) == 0) {
        return one();
    }
    if (const auto open = m_dialog.query<IFileOpenDialog>()) {
        return several(*open);
    }
    const QStringList files = one();
    return files.isEmpty() && typedName ? typed(*typedName) : files;
}

QStringList NativeResults::one() const
{
    QStringList paths;
    ComPtr<IShellItem> item;
    if (SUCCEEDED(m_dialog->GetResult(item.put())) && item) {
        append(paths, *item);
    }
    return paths;
}

QStringList NativeResults::several(IFileOpenDialog& dialog) const
{
    QStringList paths;
    ComPtr<IShellItemArray> items;
    if (FAILED(dialog.GetResults(items.put())) || !items) {
        return paths;
    }
    DWORD count = 0;
    items->GetCount(&count);
    for (DWORD i = 0; i < count; ++i) {
        ComPtr<IShellItem> item;
        items->GetItemAt(i, item.put());
        if (item) {
            append(paths, *item);
        }
    }
    return paths;
}

QStringList NativeResults::typed(const std::string& name) const
{
    QStringList paths;
    ComPtr<IShellItem> folder;
    if (FAILED(m_dialog->GetFolder(folder.put())) || !folder) {
        return paths;
    }
    for (const QString& path : pathsOfTypedText(QString::fromStdString(name), nativePathOf(m_shell, *folder), true)) {
        paths.append(QDir::toNativeSeparators(path));
    }
    return paths;
}

void NativeResults::append(QStringList& paths, IShellItem& item) const
{
    const QString path = nativePathOf(m_shell, item);
    if (!path.isEmpty()) { // empty: unreadable, or not in the file system
        paths.append(path);
    }
}

} // namespace morvane::ui
