// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "contract/ShellContract.h"
#include "contract/WindowsDifferences.h"
#include "windows/NativeDialog.h"

#include <QFileInfo>
#include <QTest>
#include <QTimer>

#include <list>
#include <thread>

namespace morvane::test {

namespace {

/**
 * Plays the user on the dialog's own thread, so that a test may look at the dialog between two actions. A menu
 * or a question runs its own loop; a helper thread, which is started before, operates it.
 */
class WindowsUser final : public ShellUser
{
public:
    explicit WindowsUser(const NativeDialog& dialog) : m_dialog(dialog) {}
    ~WindowsUser() override
    {
        for (std::thread& helper : m_helpers) {
            helper.join();
        }
    }

    void pressAccept() override { m_dialog.click(NativeDialog::Accept); }
    void pressCancel() override { m_dialog.click(NativeDialog::Cancel); }
    void typeName(const QString& name) override { m_dialog.setName(name.toStdWString()); }
    void selectFile(const QString& file) override
    {
        const std::wstring name = QFileInfo(file).fileName().toStdWString();
        // The list is filled a moment after the dialog opened.
        EXPECT_TRUE(QTest::qWaitFor([&] { return m_dialog.selectFile(name); }));
    }
    void pickType(unsigned position) override { m_dialog.chooseType(static_cast<int>(position) - 1); }
    void enterFolder(const QString& folder) override
    {
        typeName(QDir::toNativeSeparators(folder));
        pressAccept();
    }
    void clickButton(DWORD, const QString& label) override { click(label); }
    void toggleCheck(DWORD, const QString& label) override { click(label); }
    void pickAcceptItem(DWORD, DWORD, const QString& label) override
    {
        m_helpers.emplace_back(
            [label] { EXPECT_TRUE(NativeDialog::takeMenuEntry(label.toStdWString())) << label.toStdString(); });
        m_dialog.click(NativeDialog::AcceptArrow);
    }
    void chooseEntry(DWORD, DWORD, int position) override { EXPECT_TRUE(m_dialog.chooseFromCustomList(position)); }
    void chooseRadio(DWORD, DWORD, const QString& label) override { click(label); }
    void typeText(DWORD, const QString& text) override { EXPECT_TRUE(m_dialog.setCustomText(text.toStdWString())); }
    // Only Windows' own dialog has them, where nobody can read them from outside; docs/windows-checklist.md has a step.
    QStringList places() const override { return {}; }
    void pressAcceptAndAnswer(bool replace) override
    {
        m_helpers.emplace_back([dialog = m_dialog, replace] {
            EXPECT_TRUE(dialog.waitForQuestion()) << "no question was asked";
            dialog.answer(replace ? IDYES : IDNO);
        });
        pressAccept();
    }

private:
    void click(const QString& label)
    {
        const int control = m_dialog.controlWithText(label.toStdWString());
        ASSERT_NE(control, 0) << label.toStdString();
        m_dialog.click(control);
    }

    NativeDialog m_dialog;
    std::list<std::thread> m_helpers;
};

class WindowsShellDriver final : public ShellDriver
{
public:
    // The Shell that the library uses by default.
    ui::Shell& shell() override { return ui::Shell::instance(); }

    HRESULT show(IFileDialog& dialog, const std::function<void(ShellUser&)>& play) override
    {
        QTimer start;
        QObject::connect(&start, &QTimer::timeout, [&] {
            const HWND window = NativeDialog::waitForWindow(0);
            if (!window) {
                return;
            }
            start.stop();
            use(NativeDialog(window), play);
        });
        start.start(10);
        return dialog.Show(nullptr);
    }

    const char* differenceIn(const std::string& test) const override { return shellDifference(test); }

private:
    static void use(const NativeDialog& shown, const std::function<void(ShellUser&)>& play)
    {
        WindowsUser user(shown);
        play(user);
        if (shown.isOpen()) {
            user.pressCancel();
        }
    }
};

} // namespace

std::unique_ptr<ShellDriver> makeWindowsShellDriver()
{
    return std::make_unique<WindowsShellDriver>();
}

INSTANTIATE_TEST_SUITE_P(Shells, ShellContract, ::testing::Values(NamedShellDriver{"windows", &makeWindowsShellDriver}),
    [](const auto& tested) { return std::string(tested.param.name); });

} // namespace morvane::test
