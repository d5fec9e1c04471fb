// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/ChoiceChecks_p.h"
#include "ui/qt/dialogs/shell/FileDialogObserver_p.h"
#include "ui/qt/dialogs/shell/FileDialogSettings_p.h"

#include <QFileDialog>
#include <QStringList>

class QAbstractButton;
class QComboBox;
class QFileSystemModel;
class QLineEdit;

namespace morvane::ui {

/**
 * The file dialog on the screen. Unlike QFileDialog, it identifies file types by their position, makes the checks of
 * the Shell instead of Qt's, and asks an observer before each decision.
 *
 * If the desktop's own dialog is shown instead, not every change can be observed. After a refused choice that dialog is
 * opened again.
 */
class FileDialogWindow : public QFileDialog
{
public:
    FileDialogWindow(QWidget* owner, const FileDialogSettings& settings, FileDialogObserver& observer);
    ~FileDialogWindow() override;

    /** Returns when the user or done() has ended the dialog, or when the dialog was destroyed. */
    void run();

    bool consistsOfWidgets() const { return m_nameEdit != nullptr; }
    QString typedName() const;
    void setTypedName(const QString& name);
    /** Whether the name is a wildcard that the user has typed. Such a name filters the list and names no file. */
    bool holdsWildcard() const;
    void setTypeIndex(int index);
    /** Enters @p folder as if the user did it. Calls the observer before it returns. */
    void setFolder(const QString& folder);
    /** The selected files. If there are none, the files whose names are typed. */
    QStringList selectedPaths() const;
    void setTexts(const QString& title, const QString& acceptLabel, const QString& fileNameLabel);

    /** Replaces the text of the accept button. An empty text restores the button's own text. */
    void setOptionText(const QString& text);

    void accept() override;
    using QFileDialog::done;

private:
    void applySettings();
    void setUpWidgets();
    void setUpTypeCombo();
    void setUpNative();
    void setUpNativeTypes();
    void watchWidgets();
    void applyPatterns();
    void filterByWildcard();
    /** Returns whether the name field still has a wildcard to filter by. False if the named folder does not exist. */
    bool enterFolderOfWildcard();
    void forgetWildcard();
    QAbstractButton* acceptButton() const;
    void updateAcceptButton();
    void keepAcceptText();
    void onTypePicked(int index);
    void onNativeTypePicked(const QString& filter);
    void deliverLater();
    void deliver();
    void deliverFolder();
    QStringList chosenPaths() const;
    bool enterFolderAmong(const QStringList& paths);
    ChoiceChecks checks() { return {*this, m_settings, m_observer}; }

    FileDialogSettings m_settings;
    FileDialogObserver& m_observer;
    QLineEdit* m_nameEdit = nullptr;
    QComboBox* m_typeCombo = nullptr;
    QFileSystemModel* m_model = nullptr;
    QString m_acceptText; ///< the accept button's own text
    QString m_optionText; ///< shown instead of m_acceptText, unless empty
    QString m_folder;
    QString m_editedName;        ///< the name field's text after the user's last edit
    QStringList m_typedPatterns; ///< used instead of the patterns of the type, unless empty
    int m_toldType;              ///< the type that was last reported to the observer or set by the program
    bool m_folderPending = false;
    bool m_selectionPending = false;
    bool m_again = false; ///< the desktop's dialog has closed, but the choice was refused
};

} // namespace morvane::ui
