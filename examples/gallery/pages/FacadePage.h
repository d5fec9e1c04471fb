// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Page.h"

#include <QFileDialog>

class ExtendedFileDialog;
class QLabel;
class QPushButton;

namespace gallery {

class ChosenFilesTable;
class FileDialogForm;

/**
 * Runs ExtendedFileDialog with the settings of the form, and lists the chosen files. Subclasses define what the user
 * may choose.
 */
class FacadePage : public Page
{
    Q_OBJECT

public:
    /** The texts of the page. The first three are those of Page. */
    struct Texts
    {
        QString name;
        QString title;
        QString sentence;
        QString button;
        QString caption; ///< title of the dialog
    };

protected:
    FacadePage(const Texts& texts, QFileDialog::AcceptMode acceptMode, FileDialogForm* form);

    virtual QFileDialog::FileMode fileMode() const = 0;
    /** Applies the settings that only this page has. */
    virtual void configure(ExtendedFileDialog& dialog);

    /** Adds a button that does the same with one call, LaunchFileDialog(). */
    void addLaunchButton();

    FileDialogForm& form() { return *m_form; }
    QPushButton& openButton() { return *m_open; }
    QPushButton& launchButton() { return *m_launch; }
    const ChosenFilesTable& chosen() const { return *m_chosen; }
    QString typeText() const;

    /** Switches between the native and the Qt dialog with the form's check box. */
    TourStep switchStep(bool native);
    /** Opens the dialog and expects that it lists @p names. */
    TourStep openStep(const QString& name, const QString& names);
    /** Opens the dialog with one call. */
    TourStep launchStep(const QString& name, const QString& names);
    /** The text that the page shows for existing files of the tour's folder. */
    static QString shownOf(const TourWorkspace& workspace, const QStringList& names);
    /** A step that expects that no dialog is open and that the page shows the chosen files. */
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
