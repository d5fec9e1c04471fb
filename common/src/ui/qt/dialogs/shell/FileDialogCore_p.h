// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/ComPart_p.h"
#include "ui/qt/dialogs/shell/CustomControls_p.h"
#include "ui/qt/dialogs/shell/DialogMemory_p.h"
#include "ui/qt/dialogs/shell/FileDialogWindow_p.h"
#include "ui/qt/dialogs/shell/SinkNotifier_p.h"

#include <QPointer>

#include <optional>

namespace morvane::ui {

/**
 * The common part of the open and the save dialog. Has the state behind IFileDialog and runs the window.
 *
 * An exception from an event sink ends the run, and show() throws it again. So it never passes through Qt's event loop.
 */
class FileDialogCore final : private FileDialogObserver
{
public:
    /** @param dialog the object that owns this one */
    FileDialogCore(IFileDialog& dialog, bool saving, bool alwaysWidgets);
    ~FileDialogCore() override;

    CustomControls& controls() { return m_controls; }

    HRESULT show(HWND owner);
    HRESULT close(HRESULT result);

    HRESULT setFileTypes(UINT count, const COMDLG_FILTERSPEC* types);
    HRESULT setFileTypeIndex(UINT index);
    HRESULT getFileTypeIndex(UINT* index) const;
    HRESULT advise(IFileDialogEvents* sink, DWORD* cookie) { return m_notifier.advise(sink, cookie); }
    HRESULT unadvise(DWORD cookie) { return m_notifier.unadvise(cookie); }
    HRESULT setOptions(FILEOPENDIALOGOPTIONS options);
    HRESULT getOptions(FILEOPENDIALOGOPTIONS* options) const;
    HRESULT setDefaultFolder(IShellItem* folder);
    HRESULT setFolder(IShellItem* folder);
    HRESULT getFolder(IShellItem** folder) const;
    HRESULT getCurrentSelection(IShellItem** item) const;
    HRESULT getSelectedItems(IShellItemArray** items) const;
    HRESULT setFileName(LPCWSTR name);
    HRESULT getFileName(LPWSTR* name) const;
    HRESULT setTitle(LPCWSTR title);
    HRESULT setOkButtonLabel(LPCWSTR label);
    HRESULT setFileNameLabel(LPCWSTR label);
    HRESULT setDefaultExtension(LPCWSTR extension);
    HRESULT addPlace(IShellItem* folder, FDAP where);
    HRESULT setClientGuid(REFGUID guid);
    HRESULT clearClientData();
    HRESULT getResult(IShellItem** item) const;
    HRESULT getResults(IShellItemArray** items) const;

private:
    bool mayEnterFolder(const QString& folder) override { return m_notifier.folderChanging(folder); }
    void onFolderChanged(const QString& folder) override;
    void onSelectionChanged() override { m_notifier.selectionChanged(); }
    void onTypeChanged(int index) override;
    OverwriteAnswer mayOverwrite(const QString& path) override { return m_notifier.overwriting(path); }
    bool mayAccept(const QStringList& paths) override;

    ControlActions controlActions();
    FileDialogSettings settingsForRun() const;
    QString folder() const;
    bool typesSurviveInText() const;
    void begin();
    void run(QWidget* owner);
    void announceOpening();
    /** Whether the window exists and the run has not ended. */
    bool isOpen() const { return m_window && !m_notifier.hasRunEnded(); }
    void end(HRESULT result);
    void applyTexts();
    void keepMemory();

    IFileDialog& m_dialog;
    const bool m_alwaysWidgets;
    FILEOPENDIALOGOPTIONS m_options;
    FileDialogSettings m_settings; // settingsForRun() adds the flags that depend on the options
    std::optional<QString> m_fileName;
    QString m_defaultFolder;
    DialogMemory m_memory;
    SinkNotifier m_notifier;
    ComPart<CustomControls> m_controls;

    QPointer<FileDialogWindow> m_window;
    bool m_running = false;
    bool m_deciding = false;
    HRESULT m_outcome = S_OK;
    QStringList m_results;
};

} // namespace morvane::ui
