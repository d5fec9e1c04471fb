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
 * The file dialog on the screen: QFileDialog whose file types are identified by position, with the checks of the
 * Shell in place of Qt's and an observer that takes part in each decision.
 *
 * Where the desktop's own dialog appears instead, not every change can be observed: a refused folder or choice opens
 * the dialog again.
 */
class FileDialogWindow : public QFileDialog
{
public:
    FileDialogWindow(QWidget* owner, const FileDialogSettings& settings, FileDialogObserver& observer);
    ~FileDialogWindow() override;

    /** Returns when the user, or done(), has ended the dialog or it was destroyed. */
    void run();

    bool consistsOfWidgets() const { return m_nameEdit != nullptr; }
    QString typedName() const;
    void setTypedName(const QString& name);
    /** Whether the name is a wildcard that the user has typed. Such a name filters the list and names no file. */
    bool holdsWildcard() const;
    void setTypeIndex(int index);
    /** Enters @p folder as the user would; the observer is called before this returns. */
    void setFolder(const QString& folder);
    /** The selected files, or else the one whose name is typed. */
    QStringList selectedPaths() const;
    void setTexts(const QString& title, const QString& acceptLabel, const QString& fileNameLabel);

    /** The text of the accept button in place of its own; empty restores its own. */
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
    /** False when the wildcard names a folder that is not there. */
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
    QString m_acceptText; ///< of the accept button itself
    QString m_optionText; ///< in its place, unless empty
    QString m_folder;
    QString m_editedName;        ///< as the user has edited it, until a name is set
    QStringList m_typedPatterns; ///< in place of those of the type
    int m_toldType;              ///< the type last reported to the observer
    bool m_folderPending = false;
    bool m_selectionPending = false;
    bool m_again = false; ///< the desktop's dialog has ended with a choice that was refused
};

} // namespace morvane::ui
