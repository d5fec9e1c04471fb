// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/FileDialogCustomization.h"
#include "ui/qt/MorvaneUiExport.h"
#include "ui/qt/util/QtText.h"

#include <QFileDialog>
#include <QSize>
#include <QString>
#include <QStringList>

#include <memory>
#include <string>

class QComboBox;
class QLineEdit;

/**
 * A QFileDialog that always uses Qt's own widgets and has these additions:
 *
 * - Its size and position are stored in morvane::ApplicationSettings, under a key.
 * - While nothing is stored under the key, the desktop, documents and home folders are added to the sidebar, and the
 *   sidebar and the columns open as wide as their contents.
 * - A Help button opens a topic through morvane::HelpLauncher.
 * - exec() shows an arrow cursor, and a wait cursor while a folder is being read. Override cursors of the host stay on
 *   the stack, whether they are below or above these.
 * - If the user types a wildcard as the file name (`*.dat`) and presses Enter, it filters the view and is not used as a
 *   name. Where the file must exist, the Open button is disabled for a wildcard. A text is a wildcard if it contains
 *   `*`; `?` has no special meaning.
 * - The list of file types is hidden if the user picks directories.
 *
 * All `std::string` arguments are UTF-8. A name filter is a description, one blank, and patterns in parentheses that
 * are separated by blanks: `Images (*.png *.jpg)`. Several name filters are joined by `;;`.
 *
 * @snippet 13-qt-file-dialog/main.cpp dialog
 *
 * GUI thread only.
 */
class MORVANE_UI_EXPORT QExtendedFileDialog : public QFileDialog
{
    Q_OBJECT

public:
    /**
     * @param parent     owner of the dialog; the dialog is modal to its window
     * @param caption    window title; empty: Qt's default title
     * @param directory  start directory, or a file that is initially selected. Empty: the directory that a Qt file
     *                   dialog visited last in this process; if there was none, the process's current directory.
     * @param filter     name filters joined by `;;`; empty: "All Files (*)"
     * @param helpTopic  passed to the help launcher; empty: no Help button
     * @param acceptMode open or save. The initial file mode is `ExistingFile` for open and `AnyFile` for save;
     * setFileMode() changes it.
     *
     * The geometry is stored under the settings key "QExtendedFileDialog/Geometry_v2".
     */
    QExtendedFileDialog(QWidget& parent, const std::string& caption, const std::string& directory,
        const std::string& filter, const std::string& helpTopic, QFileDialog::AcceptMode acceptMode);
    /** The same with texts of Qt, see morvane::ui::isQtText. */
    template <typename Caption = std::string, typename Directory = std::string, typename Filter = std::string,
        typename HelpTopic = std::string, morvane::ui::IfQtText<Caption, Directory, Filter, HelpTopic> = 0>
    QExtendedFileDialog(QWidget& parent, const Caption& caption, const Directory& directory, const Filter& filter,
        const HelpTopic& helpTopic, QFileDialog::AcceptMode acceptMode)
        : QExtendedFileDialog(parent, morvane::ui::utf8Text(caption), morvane::ui::utf8Text(directory),
              morvane::ui::utf8Text(filter), morvane::ui::utf8Text(helpTopic), acceptMode)
    {
    }

    /** Without caption, directory, filter and help topic. The geometry is stored under the empty key. */
    QExtendedFileDialog(QWidget& parent, QFileDialog::AcceptMode acceptMode);

    /** Removes the wait cursor if this dialog has set one. */
    ~QExtendedFileDialog() override;

    /**
     * Sets the settings key of the geometry. The key is used unchanged. Any text is allowed, including the empty text.
     */
    void setGeometryPersistenceKey(std::string key);

    /**
     * Sets the initial size of the dialog, in device-independent pixels. It is used while no geometry is stored. A size
     * whose width or height is below 1 has no effect.
     */
    void setDefaultSize(QSize size);

    /**
     * Sets whether accepting runs Qt's checks: does the file exist, may it be replaced. True initially. Without the
     * checks, Enter in the name field closes the dialog with any text in the field, except a wildcard.
     */
    void performSelectedFileValidation(bool validate);

    /** If true, Qt does not ask before it accepts an existing file for saving. */
    void setDontConfirmOverwrite(bool on);

    /** If true, only directories are listed; intended for the file mode `Directory`. */
    void setShowDirectoriesOnly(bool on);

    /**
     * Controls and more that the host can add to the dialog, with the same functions as for the native dialog. Never
     * null; owned by this object. If an action of the host throws during exec(), the dialog is cancelled, and exec()
     * throws the exception.
     */
    morvane::ui::FileDialogCustomization* customization();

public Q_SLOTS:
    /**
     * Shows the dialog and returns at once. Restores the stored geometry, shows the dialog, and then stores the
     * geometry. Hides QWidget::show(), which is not virtual: a call through a base class pointer only shows the dialog.
     */
    void show();

    /**
     * Runs the dialog modally. Returns QDialog::Accepted or QDialog::Rejected.
     *
     * Restores the stored geometry before the run and stores the geometry after it. Name filters that were changed by a
     * typed wildcard in an earlier run are restored first. If the dialog is destroyed while it runs, for instance with
     * its parent, the result is QDialog::Rejected and nothing is stored. The host's override cursors are the same
     * before and after the call, in every case.
     */
    int exec() override;

protected:
    /** Closes the dialog, unless the host's check refuses what the user has accepted. */
    void done(int result) override;

protected Q_SLOTS:
    /**
     * Closes the dialog, unless the text of the name field contains `*`. In that case the text becomes the pattern of
     * the current name filter, until another filter is picked. Called by the accept button while it is enabled, and by
     * Enter in the name field.
     */
    void accept() override;

private Q_SLOTS:
    void restoreFilters();
    void revertModifiedFilterAndSelect(QString filter);
    void launchHelp();
    void onDirectoryLoaded(const QString& path);
    void onRootPathChanged(const QString& path);

private:
    friend class ExtendedFileDialog;
    friend class SaveFileQtDialog;
    struct Impl;

    // For callers that may have no parent.
    QExtendedFileDialog(QWidget* parent, const std::string& caption, const std::string& directory,
        const std::string& filter, const std::string& helpTopic, QFileDialog::AcceptMode acceptMode);

    void init(QFileDialog::AcceptMode acceptMode);
    void setHelpAction();
    void prepareToShow();
    void addSidebarUrls();
    void saveSizeAndPosition();
    void restoreSizeAndPosition();
    void restoreCursor();
    void waitForFolder();
    bool isBeingRead(const QString& folder) const;
    QString keyOf(const QString& folder) const;

    QLineEdit* m_fileNameEdit = nullptr;
    QComboBox* m_fileTypeCombo = nullptr;
    QStringList m_savedNameFilters;
    QString m_modifiedNameFilter;
    bool m_performSelectedFileValidation = true;
    bool m_overrideCursorSet = false;
    std::string m_helpTopic;
    std::string m_geometryPersistenceKey;
    QSize m_defaultSize = QSize(-1, -1);
    std::unique_ptr<Impl> m_impl;
};
