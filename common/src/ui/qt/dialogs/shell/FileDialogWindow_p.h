#pragma once

#include <QFileDialog>
#include <QMessageBox>
#include <QStringList>

#include <vector>

class QAbstractButton;
class QComboBox;
class QFileSystemModel;
class QLineEdit;

namespace morvane::ui {

/** One entry of the list of file types. */
struct FileTypeEntry
{
    QString description;
    QStringList patterns; ///< wildcards; empty shows every file
};

/** What a run of the dialog starts with. */
struct FileDialogSettings
{
    bool saving = false;
    bool picksFolders = false;
    bool allowsSeveral = false; ///< when saving, a list of names can be typed, but not picked
    bool fileMustExist = false;
    bool pathMustExist = false;
    bool asksBeforeOverwriting = false;
    bool showsHidden = false;
    bool usesWidgets = false; ///< never the desktop's own dialog
    QString title;            ///< empty: Qt's own
    QString acceptLabel;      ///< empty: Qt's own
    QString fileNameLabel;    ///< empty: Qt's own
    QString folder;           ///< of an existing directory
    QString fileName;
    bool fileNameIsTyped = false; ///< by the user, in an earlier run
    QString defaultSuffix;        ///< added to names without suffix; empty: none
    std::vector<FileTypeEntry> types;
    int typeIndex = 0;
};

/** What the window asks and tells while it runs. Any of the operations may end the run or destroy the window. */
class FileDialogObserver
{
public:
    enum class OverwriteAnswer
    {
        Ask,
        Accept,
        Refuse
    };

    virtual ~FileDialogObserver() = default;
    virtual bool mayEnterFolder(const QString& folder) = 0;
    virtual void onFolderChanged(const QString& folder) = 0;
    virtual void onSelectionChanged() = 0;
    virtual void onTypeChanged(int index) = 0;
    virtual OverwriteAnswer mayOverwrite(const QString& path) = 0;
    virtual bool mayAccept(const QStringList& paths) = 0;
};

/**
 * The file dialog on the screen: QFileDialog with a list of types that goes by position, the checks of the Shell in
 * place of Qt's, and an observer that takes part in each decision.
 *
 * Where the desktop's own dialog appears instead, typing and switching cannot be followed as closely: a refused folder
 * or choice opens the dialog again.
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
    /** Whether the name is a wildcard that the user has typed. It filters what is listed and is no name of a file. */
    bool holdsWildcard() const;
    void setTypeIndex(int index);
    /** Goes to @p folder as if the user had; the observer is told before this returns. */
    void setFolder(const QString& folder);
    /** The selected files, or else the one whose name is typed. */
    QStringList selectedPaths() const;
    void setTexts(const QString& title, const QString& acceptLabel, const QString& fileNameLabel);

    /** Gives the accept button this text in place of its own one; empty: its own again. */
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
    bool exist(const QStringList& paths);
    bool mayReplaceAll(const QStringList& paths);
    bool mayReplace(const QString& path);
    QMessageBox::StandardButton ask(
        const QString& text, QMessageBox::StandardButtons buttons, QMessageBox::StandardButton defaultButton);

    FileDialogSettings m_settings;
    FileDialogObserver& m_observer;
    QLineEdit* m_nameEdit = nullptr;
    QComboBox* m_typeCombo = nullptr;
    QFileSystemModel* m_model = nullptr;
    QString m_acceptText; ///< of the accept button itself
    QString m_optionText; ///< in its place, unless empty
    QString m_folder;
    QString m_editedName;        ///< as the user has left it, until a name is set by others
    QStringList m_typedPatterns; ///< in place of those of the type
    int m_toldType;              ///< the type that the observer knows
    bool m_folderPending = false;
    bool m_selectionPending = false;
    bool m_again = false; ///< the desktop's dialog has ended with a choice that was refused
};

} // namespace morvane::ui
