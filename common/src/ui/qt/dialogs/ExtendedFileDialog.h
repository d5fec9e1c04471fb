#pragma once

#include "ui/qt/MorvaneUiExport.h"

#include <QDir>
#include <QFileDialog>
#include <QString>
#include <QStringList>

#include <memory>
#include <string>

class ExtendedWinFileDialog;
class QExtendedFileDialog;
class QWidget;
namespace morvane::ui {
struct ParentlessFileDialog;
}

/**
 * The file dialog that a host holds: the native one (ExtendedWinFileDialog) or the one made of Qt's widgets
 * (QExtendedFileDialog), whichever the process-wide switch says at construction, behind one interface.
 *
 * @snippet 12-native-or-qt/main.cpp dialog
 *
 * The parent may be destroyed at any time, also while exec() runs, which then returns QDialog::Rejected. The Qt dialog
 * goes with it: from then on every operation does nothing and gives nothing.
 *
 * Made for one use: construct, configure, run, read, destroy. Exceptions of the chosen dialog pass through. GUI thread
 * only.
 */
class MORVANE_UI_EXPORT ExtendedFileDialog
{
public:
    /** Whether dialogs made from now on are native; initially true. */
    static bool useNativeFileDialog();
    /** Sets the switch. Dialogs that exist keep what they are. */
    static void setUseNativeFileDialog(bool on);

    /**
     * @param parent     the dialog is modal to its window
     * @param caption    window title, UTF-8
     * @param directory  start directory, UTF-8; empty: left to the dialog
     * @param filter     name filters such as `Images (*.png *.jpg)`, joined by `;;`, UTF-8
     * @param helpTopic  adds a Help button that hands it to morvane::HelpLauncher; empty for none
     * @param acceptMode open or save
     */
    ExtendedFileDialog(QWidget& parent, const std::string& caption, const std::string& directory,
        const std::string& filter, const std::string& helpTopic, QFileDialog::AcceptMode acceptMode);
    virtual ~ExtendedFileDialog();
    ExtendedFileDialog(const ExtendedFileDialog&) = delete;
    ExtendedFileDialog& operator=(const ExtendedFileDialog&) = delete;

    /** Runs the dialog modally; QDialog::Accepted or QDialog::Rejected. */
    int exec();

    /**
     * Puts a file, or a list of files in double quotes with blanks in between, into the name field; the native dialog
     * takes the last component of each only.
     */
    void selectFile(const QString& file);
    /** The chosen paths after an accepted exec(), in the form of the dialog (native paths on the native one). */
    QStringList selectedFiles();
    /** What is asked for: a file that exists, several of them, any name, or a directory. */
    void setFileMode(QFileDialog::FileMode mode);
    /** The directory that the dialog shows, or showed last. Before the first run the one to start in. */
    QDir directory();
    /** Sets the directory to start in. */
    void setDirectory(const QString& directory);
    /**
     * Chooses a filter by its exact text. For a text that is not in the list the Qt dialog keeps the chosen one; the
     * native dialog chooses none, and opens with the first.
     */
    void selectNameFilter(const QString& filter);
    /** The name filters, one an entry. */
    QStringList nameFilters();
    /** Replaces the name filters. */
    void setNameFilters(const QStringList& filters);
    /** The text of the chosen filter; empty when none is chosen. */
    QString selectedNameFilter();
    /** Whether saving over an existing file goes without the dialog's own question. */
    void setDontConfirmOverwrite(bool on);
    /** Whether the Qt dialog lists directories only; the native dialog ignores it. */
    void setShowDirectoriesOnly(bool on);

private:
    friend struct morvane::ui::ParentlessFileDialog;

    // For callers that may have no parent.
    ExtendedFileDialog(QWidget* parent, const std::string& caption, const std::string& directory,
        const std::string& filter, const std::string& helpTopic, QFileDialog::AcceptMode acceptMode);

    static bool m_useNativeFileDialog;

    std::unique_ptr<QExtendedFileDialog> m_qtDialog;
    std::unique_ptr<ExtendedWinFileDialog> m_winDialog;
};
