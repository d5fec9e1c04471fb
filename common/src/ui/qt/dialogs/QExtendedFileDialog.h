#pragma once

#include "ui/qt/MorvaneUiExport.h"

#include <QFileDialog>
#include <QSet>
#include <QSize>
#include <QString>
#include <QStringList>

#include <string>

class QComboBox;
class QFileSystemModel;
class QLineEdit;

/**
 * A QFileDialog that always shows Qt's own widgets and adds what engineers miss in it:
 *
 * - its size and position are kept in morvane::ApplicationSettings, under a key;
 * - the sidebar gets the desktop, documents and home folders while nothing is stored under the key, and it and the
 *   columns open as wide as what they hold;
 * - a Help button opens a topic through morvane::HelpLauncher;
 * - exec() shows an arrow cursor, and above it a wait cursor while a folder is being read. Override cursors of the host
 *   stay on the stack, below and above;
 * - a wildcard typed as the file name (`*.dat`) filters the view in place instead of being taken as a name. Press Enter
 *   for it: where the file must exist, the button for opening stays disabled. A `*` alone makes a wildcard, a `?` does
 *   not;
 * - the list of types is not shown where directories are picked.
 *
 * All `std::string` arguments are UTF-8. A name filter is a description, one blank, and blank-separated patterns in
 * parentheses, `Images (*.png *.jpg)`; several are joined by `;;`.
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
     * @param parent     owner of the dialog and the window it is modal to
     * @param caption    window title; empty for Qt's own
     * @param directory  start directory, or a file to start at. Empty for the directory that a file dialog of Qt has
     *                   visited last in this process; before the first one, for the process's current directory.
     * @param filter     name filters joined by `;;`; empty for "All Files (*)"
     * @param helpTopic  handed to the help launcher; empty for a dialog without Help button
     * @param acceptMode opening starts with the file mode `ExistingFile`, saving with `AnyFile`; setFileMode() changes
     * it
     *
     * The geometry is kept under the settings key "QExtendedFileDialog/Geometry_v2".
     */
    QExtendedFileDialog(QWidget& parent, const std::string& caption, const std::string& directory,
        const std::string& filter, const std::string& helpTopic, QFileDialog::AcceptMode acceptMode);

    /** No caption, directory, filter or help; the geometry is kept under the empty key. */
    QExtendedFileDialog(QWidget& parent, QFileDialog::AcceptMode acceptMode);

    /** Takes off the wait cursor, if this dialog has set one. */
    ~QExtendedFileDialog() override;

    /** Sets the settings key of the geometry, used as it stands. Any text will do, the empty one included. */
    void setGeometryPersistenceKey(std::string key);

    /**
     * Sets the size, in device-independent pixels, that the dialog opens with while no geometry is stored.
     * A size with a side below 1 has no effect.
     */
    void setDefaultSize(QSize size);

    /**
     * Whether accepting runs Qt's checks (does the file exist, may it be replaced); true initially. Without them Enter
     * in the name field closes the dialog with whatever stands there, except a wildcard.
     */
    void performSelectedFileValidation(bool validate);

    /** Whether saving over an existing file goes without Qt's question. */
    void setDontConfirmOverwrite(bool on);

    /** Whether only directories are listed; meant for the file mode `Directory`. */
    void setShowDirectoriesOnly(bool on);

public Q_SLOTS:
    /**
     * Shows the dialog without waiting for it: restores the stored geometry, shows, and stores the geometry at once.
     * Hides QWidget::show(), which is not virtual; a call through a base class pointer does none of this but showing.
     */
    void show();

    /**
     * Runs the dialog modally and returns QDialog::Accepted or QDialog::Rejected.
     *
     * Restores the stored geometry before and stores it after. The name filters that a typed wildcard had changed in an
     * earlier run are the caller's own again. When the dialog is destroyed while it runs, as with its parent, the
     * result is QDialog::Rejected and nothing is stored. In any case the host's override cursors are what they were.
     */
    int exec() override;

protected Q_SLOTS:
    /**
     * Closes the dialog, unless the name field holds a `*`: then the current name filter takes the text as its pattern,
     * until another filter is picked. Reached by the accept button while it is enabled, and by Enter in the name field.
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
    QFileSystemModel* m_model = nullptr;
    QString m_shownFolder;
    QSet<QString> m_readFolders;
};
