// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "contract/ShellDriver.h"

#include "testing/RecordingDialog.h"

#include <QDir>

namespace morvane::test {

namespace {

class RecordingUser final : public ShellUser
{
public:
    explicit RecordingUser(RecordingDialog& dialog) : m_dialog(dialog) {}

    void pressAccept() override { m_dialog.userAccepts(); }
    void pressCancel() override { m_dialog.userCancels(); }
    void typeName(const QString& name) override { m_dialog.userTypesName(name); }
    void pickType(unsigned position) override { m_dialog.userPicksType(position); }
    void enterFolder(const QString& folder) override { m_dialog.userEntersFolder(folder); }
    void selectFile(const QString& path) override { m_dialog.userSelects(path); }
    void clickButton(DWORD control, const QString&) override { m_dialog.userClicks(control); }
    void toggleCheck(DWORD control, const QString&) override { m_dialog.userToggles(control); }
    void pickAcceptItem(DWORD control, DWORD item, const QString&) override { m_dialog.userPicksItem(control, item); }
    void chooseEntry(DWORD control, DWORD item, int) override { m_dialog.userChooses(control, item); }
    void chooseRadio(DWORD control, DWORD item, const QString&) override { m_dialog.userChooses(control, item); }
    void typeText(DWORD control, const QString& text) override { m_dialog.userTypes(control, text); }
    QStringList places() const override { return m_dialog.places(); }
    void pressAcceptAndAnswer(bool replace) override
    {
        m_dialog.userAnswersOverwriting(replace);
        m_dialog.userAccepts();
    }

private:
    RecordingDialog& m_dialog;
};

class RecordingShellDriver final : public ShellDriver
{
public:
    ui::Shell& shell() override { return m_shell; }
    HRESULT show(IFileDialog& dialog, const std::function<void(ShellUser&)>& play) override
    {
        m_shell.script.showResult = HRESULT_FROM_WIN32(ERROR_CANCELLED);
        m_shell.script.duringShow = [&play](RecordingDialog& shown) {
            RecordingUser user(shown);
            play(user);
        };
        return dialog.Show(nullptr);
    }
    int leaks() const override { return m_shell.liveObjects() + m_shell.liveStrings(); }

private:
    RecordingShell m_shell;
};

} // namespace

std::unique_ptr<ShellDriver> makeRecordingShellDriver()
{
    return std::make_unique<RecordingShellDriver>();
}

} // namespace morvane::test
