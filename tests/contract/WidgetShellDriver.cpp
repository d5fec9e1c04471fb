// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "contract/ShellDriver.h"

#include "support/FileDialogDriver.h"
#include "support/ModalScript.h"
#include "ui/qt/dialogs/shell/WidgetShell_p.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QUrl>

namespace morvane::test {

namespace {

class WidgetShellUser final : public ShellUser
{
public:
    explicit WidgetShellUser(QFileDialog& dialog) : m_driver(FileDialogDriver::whenActive(dialog)) {}

    void pressAccept() override { m_driver.pressAccept(); }
    void pressCancel() override { m_driver.pressCancel(); }
    void typeName(const QString& name) override { m_driver.typeName(name); }
    void pickType(unsigned position) override { m_driver.stepToType(static_cast<int>(position) - 1); }
    void enterFolder(const QString& folder) override { m_driver.enterFolder(folder); }
    void selectFile(const QString& path) override
    {
        m_driver.clickFile(QFileInfo(path).fileName());
        QCoreApplication::processEvents(); // a user sees the result before the next action
    }
    void clickButton(DWORD, const QString& label) override { m_driver.clickControl(label); }
    void toggleCheck(DWORD, const QString& label) override { m_driver.toggleControl(label); }
    void pickAcceptItem(DWORD, DWORD, const QString& label) override { m_driver.pickAcceptItem(label); }
    void chooseEntry(DWORD control, DWORD, int position) override
    {
        m_driver.chooseEntry(nameOf(control), position);
        QCoreApplication::processEvents(); // a user sees the result before the next action
    }
    void chooseRadio(DWORD, DWORD, const QString& label) override
    {
        m_driver.clickControl(label);
        QCoreApplication::processEvents();
    }
    void typeText(DWORD control, const QString& text) override { m_driver.typeText(nameOf(control), text); }
    QStringList places() const override
    {
        QStringList folders;
        for (const QUrl& url : m_driver.dialog().sidebarUrls()) {
            folders.append(url.toLocalFile());
        }
        return folders;
    }
    void pressAcceptAndAnswer(bool replace) override { m_driver.pressAcceptAndAnswer(replace); }

private:
    static QString nameOf(DWORD control) { return QStringLiteral("customControl%1").arg(control); }

    const FileDialogDriver m_driver;
};

class WidgetShellDriver final : public ShellDriver
{
public:
    ui::Shell& shell() override { return m_shell; }
    HRESULT show(IFileDialog& dialog, const std::function<void(ShellUser&)>& play) override
    {
        ModalScript script;
        script.on<QFileDialog>([&play](QFileDialog& window) {
            const QPointer<QFileDialog> guard(&window);
            WidgetShellUser user(window);
            play(user);
            if (guard && guard->isVisible()) {
                guard->reject();
            }
        });
        return dialog.Show(nullptr);
    }

private:
    ui::WidgetShell m_shell{ui::WidgetShell::Appearance::AlwaysWidgets};
};

} // namespace

std::unique_ptr<ShellDriver> makeWidgetShellDriver()
{
    return std::make_unique<WidgetShellDriver>();
}

} // namespace morvane::test
