// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/native/NativeDialogState_p.h"

#include "ui/qt/dialogs/native/NameFilterText_p.h"
#include "ui/qt/dialogs/native/NativeText_p.h"

#include <QByteArray>

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

namespace morvane::ui {

namespace {

FILEOPENDIALOGOPTIONS changed(FILEOPENDIALOGOPTIONS options, FILEOPENDIALOGOPTIONS set, FILEOPENDIALOGOPTIONS cleared)
{
    return (options & ~cleared) | set;
}

FILEOPENDIALOGOPTIONS optionsForFileMode(FILEOPENDIALOGOPTIONS options, QFileDialog::FileMode mode)
{
    switch (mode) {
    case QFileDialog::Directory:
        return changed(options, FOS_PICKFOLDERS | FOS_PATHMUSTEXIST, FOS_FILEMUSTEXIST | FOS_ALLOWMULTISELECT);
    case QFileDialog::ExistingFiles:
        return changed(options, FOS_FILEMUSTEXIST | FOS_ALLOWMULTISELECT, FOS_PICKFOLDERS | FOS_PATHMUSTEXIST);
    case QFileDialog::ExistingFile:
        return changed(options, FOS_FILEMUSTEXIST, FOS_PICKFOLDERS | FOS_ALLOWMULTISELECT | FOS_PATHMUSTEXIST);
    default:
        return changed(options, 0, FOS_PICKFOLDERS | FOS_ALLOWMULTISELECT | FOS_PATHMUSTEXIST | FOS_FILEMUSTEXIST);
    }
}

} // namespace

NativeDialogState::NativeDialogState(Shell& shell, const ComPtr<IFileDialog>& dialog) : m_shell(shell), m_dialog(dialog)
{
}

void NativeDialogState::tellTitle(const std::string& title)
{
    m_dialog->SetTitle(shellText(title).c_str());
}

void NativeDialogState::tellOptions(QFileDialog::FileMode mode, bool asksBeforeOverwriting)
{
    FILEOPENDIALOGOPTIONS options = 0;
    m_dialog->GetOptions(&options);
    options = optionsForFileMode(options, mode);
    options =
        asksBeforeOverwriting ? changed(options, FOS_OVERWRITEPROMPT, 0) : changed(options, 0, FOS_OVERWRITEPROMPT);
    m_dialog->SetOptions(options);
}

ComPtr<IShellItem> NativeDialogState::itemFor(std::string path) const
{
    std::replace(path.begin(), path.end(), '/', '\\');
    ComPtr<IShellItem> item;
    const HRESULT result =
        m_shell.createItemFromParsingName(shellText(path).c_str(), nullptr, iidOf<IShellItem>(), item.putVoid());
    return SUCCEEDED(result) ? std::move(item) : ComPtr<IShellItem>();
}

void NativeDialogState::tellFolder(const std::string& folder, bool asDefault)
{
    const auto item = itemFor(folder);
    if (item && asDefault) {
        m_dialog->SetDefaultFolder(item.get());
    } else if (item) {
        m_dialog->SetFolder(item.get());
    }
}

void NativeDialogState::tellPlace(const std::string& folder, FDAP where)
{
    if (const auto item = itemFor(folder)) {
        m_dialog->AddPlace(item.get(), where);
    }
}

void NativeDialogState::tellFileTypes(const QStringList& nameFilters)
{
    std::vector<std::pair<ShellString, ShellString>> texts;
    texts.reserve(static_cast<std::size_t>(nameFilters.size()));
    for (const QString& filter : nameFilters) {
        const QByteArray utf8 = filter.toUtf8();
        const FileTypeText text = splitNameFilter({utf8.constData(), static_cast<std::size_t>(utf8.size())});
        texts.emplace_back(shellText(text.description), shellText(text.patterns));
    }
    std::vector<COMDLG_FILTERSPEC> types;
    types.reserve(texts.size());
    for (const auto& text : texts) {
        types.push_back({text.first.c_str(), text.second.c_str()});
    }
    m_dialog->SetFileTypes(static_cast<UINT>(types.size()), types.data());
}

void NativeDialogState::tellFileType(int type, int count)
{
    const HRESULT result = m_dialog->SetFileTypeIndex(static_cast<UINT>(type));
    // The Shell limits the index to the length of its list.
    m_toldType = count == 0 ? 0 : FAILED(result) ? 1 : std::clamp(type, 1, count);
    m_shownType = m_toldType;
}

void NativeDialogState::tellFileName(IFileDialog& dialog, const std::string& name)
{
    m_toldName = name;
    dialog.SetFileName(shellText(name).c_str());
}

void NativeDialogState::bringBack(int typeCount)
{
    if (m_leftFolder != m_openedFolder) {
        tellFolder(m_leftFolder.toStdString());
    }
    if (m_shownType != m_toldType) {
        tellFileType(m_shownType, typeCount);
    }
    if (m_acceptedName && *m_acceptedName != m_toldName) {
        tellFileName(*m_dialog, *m_acceptedName);
    }
}

void NativeDialogState::beginRun()
{
    m_openedFolder.clear();
    m_leftFolder.clear();
    m_acceptedName.reset();
}

void NativeDialogState::folderShown(const QString& path)
{
    m_openedFolder = m_openedFolder.isEmpty() ? path : m_openedFolder;
    m_leftFolder = path;
}

bool NativeDialogState::typeShown(int type)
{
    return std::exchange(m_shownType, type) != type;
}

} // namespace morvane::ui
