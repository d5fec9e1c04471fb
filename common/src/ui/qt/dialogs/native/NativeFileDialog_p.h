#pragma once

#include "property/PropertyAbstract.h"
#include "ui/qt/dialogs/ExtendedWinFileDialog.h"
#include "ui/qt/dialogs/shell/ComPtr.h"
#include "ui/qt/dialogs/shell/Shell.h"
#include "ui/qt/dialogs/shell/ShellInterfaces.h"
#include "ui/qt/dialogs/shell/ShellText_p.h"

#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

struct ExtendedWinFileDialog::Impl
{
    class ExtendedWinFileDialogEventHandler;
    class FakeWidget;

    enum class ControlKind : int
    {
        PushButton = 0,
        CheckBox = 1,
        AcceptMenuItem = 2
    };

    Impl(QWidget* parent, const std::string& caption, const std::string& directory, const std::string& filter,
        const std::string& helpTopic, QFileDialog::AcceptMode acceptMode, bool useAcceptMenu);
    virtual ~Impl();
    Impl(const Impl&) = delete;
    Impl& operator=(const Impl&) = delete;

    QDialog::DialogCode exec();
    void close();
    QStringList selectedFiles();
    /** Empty when the index of the current filter lies outside the list. */
    QString currentNameFilter() const;

    QWidget* addCustomButton(const std::string& text, boost::function<void()> action, bool prominent);
    QWidget* addCustomCheckBox(const std::string& text, boost::shared_ptr<morvane::PropertyAbstract<bool>> checked);
    QWidget* addAcceptButtonOption(const std::string& text, int value);
    void clearAcceptMenuOptions();

    // What the event handler hands on.
    void accepting(IFileDialog& dialog);
    void folderChanged(IFileDialog& dialog);
    void typeChanged(IFileDialog& dialog);
    void buttonClicked(DWORD control);
    void checkButtonToggled(DWORD control, BOOL checked);

    void init(const std::string& directory, const std::string& filter);
    void initStartFolder(const std::string& directory);
    void initAcceptMenu();
    void initHelpButton();
    void showHelp();

    void prepareRun();
    void configure();
    void configureOptions();
    void configureFileTypes();
    void bringBackWhatTheUserLeft();
    void tellFolder(std::string folder);
    void tellFileType(int type);
    void tellFileName(IFileDialog& dialog, const std::string& name);
    void readSelectedAcceptOption();
    QStringList severalResults(IFileOpenDialog& dialog);
    QStringList oneResult();
    QStringList acceptedNames();

    unsigned int addControl(ControlKind kind, const std::string& text, bool prominent, bool checked);
    HRESULT requestControl(
        IFileDialogCustomize& customize, ControlKind kind, DWORD id, const std::string& text, bool checked);
    static morvane::ui::ShellString shellText(const std::string& utf8);
    QString takeText(LPWSTR text);
    QString pathOf(IShellItem& item);
    void appendPath(QStringList& files, IShellItem& item);
    void replaceTypedExtension(IFileDialog& dialog, bool picked);
    /** What stands in the name field; nothing when it cannot be read. */
    std::optional<QString> typedName(IFileDialog& dialog);

    // Destroyed from the last to the first, which hosts rely on.
    morvane::ui::Shell& m_shell;
    morvane::ui::ComPtr<IFileDialog> m_dialog;
    QPointer<QWidget> m_parent;
    std::string m_caption;
    boost::shared_ptr<morvane::PropertyAbstract<std::string>> m_directory;
    QStringList m_nameFilters;
    std::string m_helpTopic;
    QFileDialog::AcceptMode m_acceptMode;
    QFileDialog::FileMode m_fileMode = QFileDialog::AnyFile;
    boost::shared_ptr<morvane::PropertyAbstract<int>> m_currentFilterIndex;
    boost::shared_ptr<morvane::PropertyAbstract<std::string>> m_fileName;
    bool m_dontConfirmOverwrite = false;
    unsigned int m_nextControlId = 0;
    bool m_useAcceptMenu;
    unsigned int m_acceptMenuId = 0;
    std::map<unsigned int, boost::function<void()>> m_buttonActions;
    std::map<unsigned int, boost::shared_ptr<morvane::PropertyAbstract<bool>>> m_checkBoxProperties;
    std::map<unsigned int, int> m_acceptMenuValues;
    std::vector<std::unique_ptr<FakeWidget>> m_controlWidgets;
    std::vector<std::unique_ptr<FakeWidget>> m_acceptMenuWidgets;
    int m_selectedAcceptMenuOption = 255;
    bool m_optionsApplied = false;
    bool m_running = false;
    bool m_firstRun = true;

    /** The last run was ended by close(), or was accepted by the user. */
    bool m_closed = false;
    bool m_accepted = false;

    /** The file type that the Shell shows, counted from 1, and the one that it was told; 0 without types. */
    int m_shownType = 0;
    int m_toldType = 0;
    /** The folder that this run opened in and the one that the user has gone to; empty before they are announced. */
    QString m_openedFolder;
    QString m_leftFolder;
    /** The name that the Shell was told, and the one that the user has accepted in a save dialog. */
    std::string m_toldName;
    std::optional<std::string> m_acceptedName;
};
