// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "property/PropertyAbstract.h"
#include "ui/qt/dialogs/FileDialogCustomization.h"
#include "ui/qt/dialogs/native/CustomizationTarget_p.h"
#include "ui/qt/dialogs/native/NativeControls_p.h"
#include "ui/qt/dialogs/native/NativeDialogObserver_p.h"
#include "ui/qt/dialogs/native/NativeDialogState_p.h"
#include "ui/qt/dialogs/shell/ComPtr.h"
#include "ui/qt/dialogs/shell/Shell.h"

#include <QDialog>
#include <QFileDialog>
#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <boost/shared_ptr.hpp>

#include <exception>
#include <optional>
#include <string>
#include <utility>

namespace morvane::ui {

/**
 * Owns the Shell's dialog object and runs it. Keeps the host's settings and controls.
 *
 * Texts are UTF-8. Without a dialog object, all operations are allowed, and the settings are kept.
 */
class NativeFileDialog final : public CustomizationTarget, private NativeDialogObserver
{
public:
    NativeFileDialog(QWidget* parent, const std::string& caption, const std::string& directory,
        const std::string& filter, const std::string& helpTopic, QFileDialog::AcceptMode acceptMode,
        bool useAcceptMenu);
    ~NativeFileDialog() override;
    NativeFileDialog(const NativeFileDialog&) = delete;
    NativeFileDialog& operator=(const NativeFileDialog&) = delete;

    QDialog::DialogCode exec();
    void close();
    QStringList selectedFiles();

    QWidget* parent() const { return m_parent; }
    void setFileMode(QFileDialog::FileMode mode) { m_fileMode = mode; }
    void setDontConfirmOverwrite(bool on) { m_dontConfirmOverwrite = on; }
    PropertyAbstract<std::string>& directory() { return *m_directory; }
    PropertyAbstract<std::string>& fileName() { return *m_fileName; }
    const boost::shared_ptr<PropertyAbstract<int>>& currentFilterIndex() const { return m_currentFilterIndex; }
    const QStringList& nameFilters() const { return m_nameFilters; }
    void setNameFilters(const QStringList& filters) { m_nameFilters = filters; }
    /** Empty if the index of the current filter is outside the list. */
    QString currentNameFilter() const;
    NativeControls& controls() override { return m_controls; }
    void setAcceptanceCheck(AcceptanceCheck check) override { m_acceptanceCheck = std::move(check); }
    void setAcceptButtonText(const std::string& text) override;
    void setFileNameLabel(const std::string& label) override;
    void addPlace(const std::string& folder, bool atTop) override;
    void setMemoryKey(const std::string& key) override;
    void clearMemory() override;
    FileDialogCustomization* customization() { return &m_customization; }
    /** The Shell's dialog object, only for comparisons. Null if there is none. */
    const IFileDialog* shellDialog() const { return m_dialog.get(); }

private:
    bool onAccepting(IFileDialog& dialog) override;
    void onFolderChanged(IFileDialog& dialog) override;
    void onTypeChanged(IFileDialog& dialog) override;
    void onButtonClicked(DWORD control) override;
    void onCheckButtonToggled(DWORD control, BOOL checked) override;
    void onItemSelected(DWORD control, DWORD item) override;

    void init(const std::string& directory, const std::string& filter);
    void initStartFolder(const std::string& directory);
    void initHelpButton();
    void prepareRun();
    void configure();
    HRESULT show();
    void pollTexts();
    bool mayAccept(IFileDialog& dialog);
    void refuse(IFileDialog& dialog, const std::string& reason);
    void replaceTypedExtension(IFileDialog& dialog, bool picked);
    /** The text of the name field. None if it cannot be read. */
    std::optional<QString> typedName(IFileDialog& dialog);

    // Members are destroyed in reverse order. Hosts rely on this order.
    Shell& m_shell;
    ComPtr<IFileDialog> m_dialog;
    QPointer<QWidget> m_parent;
    std::string m_caption;
    boost::shared_ptr<PropertyAbstract<std::string>> m_directory;
    QStringList m_nameFilters;
    std::string m_helpTopic;
    QFileDialog::AcceptMode m_acceptMode;
    QFileDialog::FileMode m_fileMode = QFileDialog::AnyFile;
    boost::shared_ptr<PropertyAbstract<int>> m_currentFilterIndex;
    boost::shared_ptr<PropertyAbstract<std::string>> m_fileName;
    bool m_dontConfirmOverwrite = false;
    bool m_useAcceptMenu;
    NativeControls m_controls;
    NativeDialogState m_state;
    bool m_optionsApplied = false;
    bool m_running = false;
    bool m_firstRun = true;

    /** Whether close() has ended the last run, and whether the user has accepted in it. */
    bool m_closed = false;
    bool m_accepted = false;

    AcceptanceCheck m_acceptanceCheck;
    bool m_hasMemory = false;
    FileDialogCustomization m_customization{*this};
    std::exception_ptr m_thrown; ///< by an observer of a text that was read between two events
};

} // namespace morvane::ui
