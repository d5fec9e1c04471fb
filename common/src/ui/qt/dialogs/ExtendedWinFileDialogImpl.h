#pragma once

#include "property/PropertyAbstract.h"
#include "ui/qt/dialogs/ExtendedWinFileDialog.h"
#include "ui/qt/dialogs/shell/ComPtr.h"
#include "ui/qt/dialogs/shell/Shell.h"
#include "ui/qt/dialogs/shell/ShellInterfaces.h"
#include "ui/qt/dialogs/shell/ShellText.h"

#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include <map>
#include <memory>
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
    void folderChanged(IFileDialog& dialog);
    void typeChanged(IFileDialog& dialog);
    void buttonClicked(DWORD control);
    void checkButtonToggled(DWORD control, BOOL checked);

    void initStartFolder(const std::string& directory);
    void initAcceptMenu();
    void initHelpButton();
    void showHelp();

    void configureOnce();
    void configureOptions();
    void configureFolder();
    void configureFileTypes();
    void readSelectedAcceptOption();

    unsigned int addControl(ControlKind kind, const std::string& text, bool prominent, bool checked);
    HRESULT requestControl(
        IFileDialogCustomize& customize, ControlKind kind, DWORD id, const std::string& text, bool checked);
    static morvane::ui::ShellString shellText(const std::string& utf8);
    QString takeText(LPWSTR text);
    QString pathOf(IShellItem& item);
    void appendPath(QStringList& files, IShellItem& item);
    void replaceTypedExtension(IFileDialog& dialog);

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
};
