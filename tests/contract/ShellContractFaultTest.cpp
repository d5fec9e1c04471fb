// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "contract/FailingShell.h"
#include "contract/ShellContract.h"
#include "property/Property.h"
#include "ui/qt/dialogs/ExtendedWinFileDialog.h"

#include <boost/make_shared.hpp>

#include <QWidget>

#include <map>
#include <set>

namespace morvane::test {

namespace {

using Names = std::set<std::string>;

/** The library's dialog on a Shell that fails one of its calls. */
class FaultyRun
{
public:
    FaultyRun(ShellDriver& driver, const QDir& folder) : m_driver(driver), m_folder(folder) {}

    /** Uses the dialog once without failures, and then once for each call that it made, with that call failing. */
    void failEachCall(void (FaultyRun::*use)());

    void open();
    void save();
    void openWithOptions();

private:
    struct Outcome
    {
        QDialog::DialogCode code = QDialog::Rejected;
        QStringList files;
        int clicks = 0;
        bool checked = false;
        int encoding = 0;
        int unit = 1;
        std::string comment = "before";
    };

    /** The identifiers of the controls in openWithOptions(), in the order in which the library counts them. */
    enum : DWORD
    {
        Encoding = 2,
        SecondEncoding = 4,
        Unit = 7,
        FirstUnit = 8,
        Comment = 14
    };

    HRESULT show(IFileDialog& dialog)
    {
        return m_driver.show(dialog, [this](ShellUser& user) { m_play(user); });
    }
    void useOnce(void (FaultyRun::*use)(), const std::string& failing, int before);
    bool hasControls() const;
    bool hasOptions() const;
    bool keepsTheSink() const;
    void expectOptions(const Outcome& outcome) const;
    void addOptions(ExtendedWinFileDialog& dialog);
    void useOptions(ShellUser& user);
    void expectTheCheck() const;
    void expectWhatCanBe(const Outcome& outcome) const;
    std::unique_ptr<ExtendedWinFileDialog> make(QFileDialog::AcceptMode mode, bool withMenu);
    static Names namesOf(const std::vector<std::string>& calls) { return {calls.begin(), calls.end()}; }

    ShellDriver& m_driver;
    const QDir m_folder;
    QWidget m_parent;
    FailingShell m_shell{m_driver.shell(), [this](IFileDialog& dialog) { return show(dialog); }};
    std::function<void(ShellUser&)> m_play;
    Outcome m_outcome;
    boost::shared_ptr<Property<int>> m_encoding;
    boost::shared_ptr<Property<int>> m_unit;
    boost::shared_ptr<Property<std::string>> m_comment;
};

/** Whether, in spite of the failed call, the dialog has all of its controls and events still reach them. */
bool FaultyRun::hasControls() const
{
    const std::string& failed = m_shell.faults.failed();
    const Names harmful{"CoInitializeEx", "CoCreateInstance", "QISearch", "IFileDialog::Advise",
        "IFileDialog::QueryInterface", "IFileDialogCustomize::AddPushButton", "IFileDialogCustomize::AddCheckButton",
        "IFileDialogCustomize::SetControlState", "IFileDialogCustomize::GetControlState"};
    return harmful.count(failed) == 0;
}

/** Whether, in spite of the failed call, the dialog has all of its options and the library reads them. */
bool FaultyRun::hasOptions() const
{
    const std::string prefix = "IFileDialogCustomize::";
    const std::string& failed = m_shell.faults.failed();
    const Names harmless{prefix + "AddSeparator", prefix + "EndVisualGroup", prefix + "GetControlItemState",
        prefix + "SetControlItemState", prefix + "SetEditBoxText"};
    return harmless.count(failed) != 0 || (hasControls() && failed.rfind(prefix, 0) != 0);
}

/** Whether the system's Shell never releases a sink for which Unadvise has failed. */
bool FaultyRun::keepsTheSink() const
{
    return m_shell.faults.failed() == "IFileDialog::Unadvise" && m_driver.differenceIn("releasesItsSinksAtItsEnd");
}

void FaultyRun::expectWhatCanBe(const Outcome& outcome) const
{
    const Names endsIt{"CoInitializeEx", "CoCreateInstance", "IFileDialog::QueryInterface", "IFileDialog::Show"};
    const Names hidesFiles{"IFileDialog::GetResult", "IFileDialog::GetResults", "IShellItem::GetDisplayName",
        "IShellItemArray::GetCount", "IShellItemArray::GetItemAt", "IFileDialog::GetOptions"};
    const std::string& failed = m_shell.faults.failed();
    if (endsIt.count(failed) == 0) {
        EXPECT_EQ(outcome.code, QDialog::Accepted);
        EXPECT_TRUE(hidesFiles.count(failed) != 0 || outcome.files.size() == 1);
        EXPECT_EQ(outcome.clicks, hasControls() ? 1 : 0);
        EXPECT_EQ(outcome.checked, hasControls());
    }
    EXPECT_FALSE(outcome.files.contains(QString()));
}

void FaultyRun::expectOptions(const Outcome& outcome) const
{
    EXPECT_TRUE(outcome.encoding >= 0 && outcome.encoding < 3) << outcome.encoding;
    EXPECT_TRUE(outcome.unit == 0 || outcome.unit == 1) << outcome.unit;
    EXPECT_TRUE(outcome.comment == "before" || outcome.comment == "by the host" || outcome.comment == "typed")
        << outcome.comment;
    if (hasOptions() && m_shell.faults.failed() != "IFileDialog::Show") {
        EXPECT_EQ(outcome.encoding, 1);
        EXPECT_EQ(outcome.unit, 0);
        EXPECT_EQ(outcome.comment, "typed");
    }
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

void FaultyRun::addOptions(ExtendedWinFileDialog& dialog)
{
    m_encoding = boost::make_shared<Property<int>>(0);
    m_unit = boost::make_shared<Property<int>>(1);
    m_comment = boost::make_shared<Property<std::string>>("before");
    QWidget* const list = dialog.addCustomComboBox("Encoding", {"UTF-8", "UTF-16", "Latin 1"}, m_encoding);
    dialog.addCustomRadioButtons("Unit", {"mm", "cm"}, m_unit);
    dialog.addCustomSeparator();
    dialog.beginCustomGroup("Import");
    dialog.addCustomText("Some words");
    QWidget* const edit = dialog.addCustomLineEdit("Comment", m_comment);
    dialog.endCustomGroup();
    dialog.customEntry(list, 2)->setEnabled(false);
    edit->setEnabled(false);
    edit->setEnabled(true);
    dialog.setAcceptButtonText("Import");
    dialog.setFileNameLabel("Measurement:");
    dialog.addPlace(m_folder.path().toStdString(), ui::FileDialogCustomization::Place::Bottom);
    dialog.setMemoryKey("faults");
    dialog.clearMemory();
    dialog.setAcceptanceCheck([this](const QStringList&) {
        ++m_outcome.clicks;
        return ValidationResult();
    });
}

void FaultyRun::useOptions(ShellUser& user)
{
    m_encoding->setValue(2);
    m_comment->setValue("by the host");
    if (hasOptions()) {
        user.chooseEntry(Encoding, SecondEncoding, 1);
        user.chooseRadio(Unit, FirstUnit, QStringLiteral("mm"));
        user.typeText(Comment, QStringLiteral("typed"));
    }
    user.typeName(QDir::toNativeSeparators(m_folder.filePath(QStringLiteral("a.txt"))));
    user.pressAccept();
}

/** The check is called once, unless there is no dialog or the library does not hear that the user accepts. */
void FaultyRun::expectTheCheck() const
{
    const Names noDialog{"CoInitializeEx", "CoCreateInstance", "IFileDialog::Show", "IFileDialog::Advise"};
    const Names perhapsNone{"IFileDialog::QueryInterface", "QISearch"};
    const std::string& failed = m_shell.faults.failed();
    if (noDialog.count(failed) != 0) {
        EXPECT_EQ(m_outcome.clicks, 0);
    } else if (perhapsNone.count(failed) == 0) {
        EXPECT_EQ(m_outcome.clicks, 1);
    }
}

void FaultyRun::openWithOptions()
{
    const auto dialog = make(QFileDialog::AcceptOpen, false);
    addOptions(*dialog);
    m_play = [this](ShellUser& user) { useOptions(user); };
    m_outcome.code = dialog->exec();
    m_outcome.files = dialog->selectedFiles();
    m_outcome.encoding = m_encoding->value();
    m_outcome.unit = m_unit->value();
    m_outcome.comment = m_comment->value();
    expectOptions(m_outcome);
    expectTheCheck();
    // The same as after opening files.
    m_outcome.clicks = hasControls() ? 1 : 0;
    m_outcome.checked = hasControls();
}

void FaultyRun::failEachCall(void (FaultyRun::*use)())
{
    const ui::ShellOverride shellOverride(m_shell);
    useOnce(use, "", 0);
    const std::vector<std::string> calls = m_shell.faults.calls();
    EXPECT_GE(namesOf(calls).size(), 12u) << "the use has become poor";
    // A timer reads edit boxes, so the number of these calls is not the same each time.
    const Names timed{"IFileDialog::QueryInterface", "IFileDialog::GetEditBoxText"};
    std::map<std::string, int> before;
    for (const std::string& call : calls) {
        SCOPED_TRACE(call + " number " + std::to_string(before[call]));
        useOnce(use, call, before[call]++);
        EXPECT_TRUE(!m_shell.faults.failed().empty() || timed.count(call) != 0) << "the call is not made each time";
    }
}

void FaultyRun::useOnce(void (FaultyRun::*use)(), const std::string& failing, int before)
{
    m_shell.faults.start(failing, before);
    m_outcome = {};
    (this->*use)();
    expectWhatCanBe(m_outcome);
    EXPECT_EQ(m_shell.faults.liveObjects, keepsTheSink() ? 1 : 0);
    m_shell.faults.liveObjects = 0;
    EXPECT_EQ(m_shell.faults.liveStrings, 0);
    EXPECT_EQ(m_shell.faults.apartments, 0);
}

} // namespace

TEST_P(ShellContract, eachCallOfTheLibraryMayFailWhileItOpensFiles)
{
    FaultyRun(*driver, folder.path()).failEachCall(&FaultyRun::open);
}

TEST_P(ShellContract, eachCallOfTheLibraryMayFailWhileItOpensAFileWithOptions)
{
    FaultyRun(*driver, folder.path()).failEachCall(&FaultyRun::openWithOptions);
}

TEST_P(ShellContract, eachCallOfTheLibraryMayFailWhileItSavesAFile)
{
    FaultyRun(*driver, folder.path()).failEachCall(&FaultyRun::save);
}

} // namespace morvane::test
