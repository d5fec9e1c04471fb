#pragma once

#include "Page.h"

#include <QFileDialog>

class ExtendedFileDialog;
class QLabel;
class QPushButton;

namespace gallery {

class ChosenFilesTable;
class FileDialogForm;

/** Runs ExtendedFileDialog as the form says, and lists what was chosen. Subclasses say what is asked for. */
class FacadePage : public Page
{
    Q_OBJECT

public:
    /** What the page says; the first three are those of Page. */
    struct Texts
    {
        QString name;
        QString title;
        QString sentence;
        QString button;
        QString caption; ///< of the dialog
    };

protected:
    FacadePage(const Texts& texts, QFileDialog::AcceptMode acceptMode, FileDialogForm* form);

    virtual QFileDialog::FileMode fileMode() const = 0;
    /** Sets what only this page has. */
    virtual void configure(ExtendedFileDialog& dialog);

    /** Adds a button that asks the same with one call, LaunchFileDialog(). */
    void addLaunchButton();

    FileDialogForm& form() { return *m_form; }
    QPushButton& openButton() { return *m_open; }
    QPushButton& launchButton() { return *m_launch; }
    const ChosenFilesTable& chosen() const { return *m_chosen; }
    QString typeText() const;

    /** Makes the dialog native, or not, by the form's check box. */
    TourStep switchStep(bool native);
    /** Opens the dialog, which then lists @p names. */
    TourStep openStep(const QString& name, const QString& names);
    /** Opens the dialog with one call. */
    TourStep launchStep(const QString& name, const QString& names);
    /** What the page shows of existing files of the tour's folder. */
    static QString shownOf(const TourWorkspace& workspace, const QStringList& names);
    /** A step after which no dialog is open, and the page shows what was chosen. */
    TourStep chosenStep(
        const QString& name, const std::function<void()>& action, const QString& files, const QString& type);

private:
    void runDialog();
    void launchDialog();
    void showChosen(const QStringList& files, int type);

    QString m_caption;
    QFileDialog::AcceptMode m_acceptMode;
    FileDialogForm* m_form;
    QPushButton* m_open;
    QPushButton* m_launch;
    QLabel* m_type;
    ChosenFilesTable* m_chosen;
};

} // namespace gallery
