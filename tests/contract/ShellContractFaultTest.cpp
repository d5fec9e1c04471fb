// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "contract/FailingShell.h"
#include "contract/ShellContract.h"
#include "property/Property.h"
#include "ui/qt/dialogs/ExtendedWinFileDialog.h"

#include <boost/make_shared.hpp>

#include <QWidget>

#include <optional>
#include <set>

namespace morvane::test {

namespace {

/** The library's dialog on a Shell that fails one of its calls. */
class FaultyRun
{
public:
    FaultyRun(ShellDriver& driver, const QDir& folder) : m_driver(driver), m_folder(folder) {}

    /** Uses the dialog once without failures, to record its calls, and then once for each call, with that call failing.
     */
    void failEachCall(void (FaultyRun::*use)());

    void open();
    void save();

private:
    struct Outcome
    {
        QDialog::DialogCode code = QDialog::Rejected;
        QStringList files;
        int clicks = 0;
        bool checked = false;
    };

    HRESULT show(IFileDialog& dialog)
    {
        return m_driver.show(dialog, [this](ShellUser& user) { m_play(user); });
    }
    bool hasControls() const;
    bool keepsTheSink() const;
    void expectWhatCanBe(const Outcome& outcome) const;
    std::unique_ptr<ExtendedWinFileDialog> make(QFileDialog::AcceptMode mode, bool withMenu);
    static std::set<std::string> namesOf(const std::vector<std::string>& calls) { return {calls.begin(), calls.end()}; }

    ShellDriver& m_driver;
    const QDir m_folder;
    QWidget m_parent;
    FailingShell m_shell{m_driver.shell(), [this](IFileDialog& dialog) { return show(dialog); }};
    std::function<void(ShellUser&)> m_play;
    Outcome m_outcome;
};

/** Whether, in spite of the failed call, the dialog has all of its controls and events still reach them. */
bool FaultyRun::hasControls() const
{
    const std::string& failed = m_shell.faults.failed();
    const std::set<std::string> harmful{"CoInitializeEx", "CoCreateInstance", "QISearch", "IFileDialog::Advise",
        "IFileDialog::QueryInterface", "IFileDialogCustomize::AddPushButton", "IFileDialogCustomize::AddCheckButton",
        "IFileDialogCustomize::SetControlState", "IFileDialogCustomize::GetControlState"};
    return harmful.count(failed) == 0;
}

/** Whether the system's Shell never releases a sink for which Unadvise has failed. */
bool FaultyRun::keepsTheSink() const
{
    return m_shell.faults.failed() == "IFileDialog::Unadvise" && m_driver.differenceIn("releasesItsSinksAtItsEnd");
}

void FaultyRun::expectWhatCanBe(const Outcome& outcome) const
{
    const std::set<std::string> endsIt{
        "CoInitializeEx", "CoCreateInstance", "IFileDialog::QueryInterface", "IFileDialog::Show"};
    const std::set<std::string> hidesFiles{"IFileDialog::GetResult", "IFileDialog::GetResults",
        "IShellItem::GetDisplayName", "IShellItemArray::GetCount", "IShellItemArray::GetItemAt",
        "IFileDialog::GetOptions"};
    const std::string& failed = m_shell.faults.failed();
    if (endsIt.count(failed) == 0) {
        EXPECT_EQ(outcome.code, QDialog::Accepted);
        EXPECT_TRUE(hidesFiles.count(failed) != 0 || outcome.files.size() == 1);
        EXPECT_EQ(outcome.clicks, hasControls() ? 1 : 0);
        EXPECT_EQ(outcome.checked, hasControls());
    }
    EXPECT_FALSE(outcome.files.contains(QString()));
}

std::unique_ptr<ExtendedWinFileDialog> FaultyRun::make(QFileDialog::AcceptMode mode, bool withMenu)
{
    return std::make_unique<ExtendedWinFileDialog>(
        m_parent, "Files", m_folder.path().toStdString(), "Text (*.txt);;Data (*.dat)", "topic", mode, withMenu);
}

void FaultyRun::open()
{
    const auto dialog = make(QFileDialog::AcceptOpen, true);
    const auto checked = boost::make_shared<Property<bool>>(false);
    QWidget* const button = dialog->addCustomButton("Preview", [this] { ++m_outcome.clicks; });
    QWidget* const check = dialog->addCustomCheckBox("Keep", checked);
    QWidget* const option = dialog->addAcceptButtonOption("Read-only", 7);
    for (QWidget* const widget : {button, check, option}) {
        widget->setEnabled(false);
        widget->setEnabled(true);
    }
    dialog->setFileMode(QFileDialog::ExistingFiles);
    m_play = [this](ShellUser& user) {
        if (hasControls()) {
            user.clickButton(2, QStringLiteral("Preview"));
            user.toggleCheck(3, QStringLiteral("Keep"));
        }
        user.typeName(QDir::toNativeSeparators(m_folder.filePath(QStringLiteral("a.txt"))));
        user.pressAccept();
    };
    m_outcome.code = dialog->exec();
    m_outcome.files = dialog->selectedFiles();
    m_outcome.checked = checked->value();
    dialog->selectedAcceptMenuOption();
    dialog->directory();
    dialog->clearAcceptMenuOptions();
}

void FaultyRun::save()
{
    const auto dialog = make(QFileDialog::AcceptSave, false);
    dialog->selectFile(QStringLiteral("report.txt"));
    dialog->addCustomButton("Done", [&] { dialog->close(); });
    m_play = [this](ShellUser& user) {
        if (hasControls()) {
            user.clickButton(2, QStringLiteral("Done"));
        }
    };
    dialog->exec();
    EXPECT_TRUE(dialog->selectedFiles().isEmpty());
    m_play = [this](ShellUser& user) {
        user.typeName(QDir::toNativeSeparators(m_folder.filePath(QStringLiteral("new.txt"))));
        user.pressAccept();
    };
    m_outcome.code = dialog->exec();
    m_outcome.files = dialog->selectedFiles();
    // The same as after opening files.
    m_outcome.clicks = hasControls() ? 1 : 0;
    m_outcome.checked = hasControls();
}

void FaultyRun::failEachCall(void (FaultyRun::*use)())
{
    const ui::ShellOverride shellOverride(m_shell);
    int count = 0;
    for (int failing = -1; failing < count; ++failing) {
        m_shell.faults.start(failing);
        m_outcome = {};
        (this->*use)();
        if (failing < 0) {
            count = static_cast<int>(m_shell.faults.calls().size());
            EXPECT_GE(namesOf(m_shell.faults.calls()).size(), 12u) << "the use has become poor";
        }
        SCOPED_TRACE(std::to_string(failing) + ": " + m_shell.faults.failed());
        expectWhatCanBe(m_outcome);
        EXPECT_EQ(m_shell.faults.liveObjects, keepsTheSink() ? 1 : 0);
        m_shell.faults.liveObjects = 0;
        EXPECT_EQ(m_shell.faults.liveStrings, 0);
        EXPECT_EQ(m_shell.faults.apartments, 0);
        EXPECT_TRUE(failing < 0 || !m_shell.faults.failed().empty()) << "the calls are not the same each time";
    }
}

} // namespace

TEST_P(ShellContract, eachCallOfTheLibraryMayFailWhileItOpensFiles)
{
    FaultyRun(*driver, folder.path()).failEachCall(&FaultyRun::open);
}

TEST_P(ShellContract, eachCallOfTheLibraryMayFailWhileItSavesAFile)
{
    FaultyRun(*driver, folder.path()).failEachCall(&FaultyRun::save);
}

} // namespace morvane::test
