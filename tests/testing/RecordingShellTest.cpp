// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The recording Shell as the tests of a host use it: through the library's own dialog classes.
#include "testing/RecordingShell.h"
#include "testing/RecordingControls.h"
#include "testing/RecordingDialog.h"

#include "property/Property.h"
#include "support/QtPrinters.h"
#include "ui/qt/dialogs/ExtendedWinFileDialog.h"
#include "ui/qt/dialogs/SaveFileDialog.h"
#include "ui/qt/dialogs/shell/ShellText_p.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QWidget>

namespace morvane::test {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;
using ui::toShellString;

const QString preview = QStringLiteral("&Preview");
const QString compress = QStringLiteral("&Compress");
const QString saveAndClose = QStringLiteral("Save and close");

/** A host's save dialog with a control of each kind. */
class RecordingShellTest : public ::testing::Test
{
protected:
    RecordingShellTest()
    {
        m_preview = m_dialog.addCustomButton(preview.toStdString(), [this] { ++m_previews; });
        m_compress = m_dialog.addCustomCheckBox(compress.toStdString(), m_compressed);
        m_dialog.addAcceptButtonOption("Save", 7);
        m_option = m_dialog.addAcceptButtonOption(saveAndClose.toStdString(), 8);
    }

    /** Runs the dialog with @p play as its user, who cancels in the end. */
    int run(const std::function<void(RecordingDialog&)>& play)
    {
        m_shell.script.showResult = HRESULT_FROM_WIN32(ERROR_CANCELLED);
        m_shell.script.duringShow = play;
        return m_dialog.exec();
    }

    QTemporaryDir m_folder;
    RecordingShell m_shell;
    ui::ShellOverride m_guard{m_shell};
    QWidget m_window;
    boost::shared_ptr<Property<bool>> m_compressed = boost::make_shared<Property<bool>>(true);
    int m_previews = 0;
    ExtendedWinFileDialog m_dialog{m_window, "Save", m_folder.path().toStdString(), "Data (*.dat);;Text (*.txt *.log)",
        "", QFileDialog::AcceptSave, true};
    QWidget* m_preview = nullptr;
    QWidget* m_compress = nullptr;
    QWidget* m_option = nullptr;
};

TEST_F(RecordingShellTest, showsWhatAUserWouldSee)
{
    int looked = 0;
    run([&](RecordingDialog& dialog) {
        ++looked;
        EXPECT_TRUE(dialog.isShown());
        EXPECT_TRUE(dialog.isSaving());
        EXPECT_EQ(dialog.title(), QStringLiteral("Save"));
        EXPECT_EQ(dialog.folder(), m_folder.path());
        EXPECT_EQ(dialog.fileName(), QString());
        EXPECT_THAT(dialog.types(), ElementsAre(Pair(QStringLiteral("Data"), QStringLiteral("*.dat")),
                                        Pair(QStringLiteral("Text"), QStringLiteral("*.txt;*.log"))));
        EXPECT_EQ(dialog.typeIndex(), 1U);
    });
    EXPECT_EQ(looked, 1);
    EXPECT_FALSE(m_shell.dialog()->isShown());
}

TEST_F(RecordingShellTest, givesTheHostTheFileThatTheUserTypesAndAccepts)
{
    EXPECT_EQ(run([](RecordingDialog& dialog) {
        dialog.userTypesName(QStringLiteral("report.dat"));
        dialog.userAccepts();
    }),
        QDialog::Accepted);
    EXPECT_EQ(m_dialog.selectedFiles(),
        QStringList(QDir::toNativeSeparators(m_folder.filePath(QStringLiteral("report.dat")))));
}

TEST_F(RecordingShellTest, staysOpenWithoutAName)
{
    EXPECT_EQ(run([](RecordingDialog& dialog) { dialog.userAccepts(); }), QDialog::Rejected);
}

TEST(RecordingShellOpen, staysOpenForAFileThatIsNotThereUnlessTheScriptHasResults)
{
    RecordingShell shell;
    ui::ComPtr<IFileDialog> dialog;
    ASSERT_EQ(shell.coCreateInstance(CLSID_FileOpenDialog, nullptr, 1, IID_IFileDialog, dialog.putVoid()), S_OK);
    shell.script.showResult = E_ABORT;
    shell.script.duringShow = [](RecordingDialog& shown) {
        shown.userTypesName(QStringLiteral("/no/such/file"));
        shown.userAccepts();
    };
    EXPECT_EQ(dialog->Show(nullptr), E_ABORT);
    shell.script.results = QStringList(QStringLiteral("/no/such/other"));
    EXPECT_EQ(dialog->Show(nullptr), S_OK);
}

TEST(RecordingShellOpen, hasASingleResultOnlyForASingleFile)
{
    RecordingShell shell;
    ui::ComPtr<IFileDialog> dialog;
    ASSERT_EQ(shell.coCreateInstance(CLSID_FileOpenDialog, nullptr, 1, IID_IFileDialog, dialog.putVoid()), S_OK);
    shell.script.duringShow = [](RecordingDialog& shown) { shown.userAccepts(); };
    const std::vector<std::pair<QStringList, HRESULT>> table = {
        {{QStringLiteral("/a")}, S_OK}, {{QStringLiteral("/a"), QStringLiteral("/b")}, E_FAIL}};
    for (const auto& [files, expected] : table) {
        shell.script.results = files;
        EXPECT_EQ(dialog->Show(nullptr), S_OK);
        ui::ComPtr<IShellItem> item;
        EXPECT_EQ(dialog->GetResult(item.put()), expected) << files.size();
    }
}

TEST_F(RecordingShellTest, staysOpenWhenTheUserWantsNoFileReplaced)
{
    const QString name = QStringLiteral("old.dat");
    QFile file(m_folder.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const auto accept = [&](bool replace) {
        return run([=](RecordingDialog& dialog) {
            dialog.userTypesName(name);
            dialog.userAnswersOverwriting(replace);
            dialog.userAccepts();
        });
    };
    EXPECT_EQ(accept(false), QDialog::Rejected);
    EXPECT_EQ(accept(true), QDialog::Accepted);
}

TEST_F(RecordingShellTest, replacesAFileUnlessTheUserSaysNo)
{
    QFile file(m_folder.filePath(QStringLiteral("old.dat")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(run([](RecordingDialog& dialog) {
        dialog.userTypesName(QStringLiteral("old.dat"));
        dialog.userAccepts();
    }),
        QDialog::Accepted);
}

TEST_F(RecordingShellTest, findsControlsAndItemsByTheLabelsThatTheyHaveLast)
{
    RecordingControls& controls = m_shell.dialog()->controls();
    const auto button = controls.idOf(preview);
    const auto option = controls.itemOf(saveAndClose);
    ASSERT_TRUE(button && option);
    EXPECT_EQ(controls.SetControlLabel(*button, toShellString(QStringLiteral("Look")).c_str()), S_OK);
    EXPECT_EQ(controls.SetControlItemText(option->first, option->second, toShellString(QStringLiteral("Keep")).c_str()),
        S_OK);
    EXPECT_EQ(controls.idOf(QStringLiteral("Look")), button);
    EXPECT_FALSE(controls.idOf(preview));
    EXPECT_EQ(controls.itemOf(QStringLiteral("Keep")), option);
    EXPECT_FALSE(controls.itemOf(saveAndClose));
}

TEST_F(RecordingShellTest, clicksAButtonByItsLabel)
{
    bool clicked = false;
    run([&](RecordingDialog& dialog) { clicked = dialog.userClicks(preview); });
    EXPECT_TRUE(clicked);
    EXPECT_EQ(m_previews, 1);
}

TEST_F(RecordingShellTest, togglesACheckBoxByItsLabel)
{
    bool before = false;
    bool after = true;
    run([&](RecordingDialog& dialog) {
        //! [controls]
        const auto id = dialog.controls().idOf(compress); // "&Compress", as the host has named its check box
        ASSERT_TRUE(id);
        before = dialog.controls().isChecked(*id);
        EXPECT_TRUE(dialog.userToggles(compress));
        after = dialog.controls().isChecked(*id);
        //! [controls]
    });
    EXPECT_TRUE(before);
    EXPECT_FALSE(after);
    EXPECT_FALSE(m_compressed->getValue());
}

TEST_F(RecordingShellTest, picksFromTheAcceptMenuByItsLabelAndAccepts)
{
    EXPECT_EQ(run([](RecordingDialog& dialog) {
        dialog.userTypesName(QStringLiteral("report.dat"));
        EXPECT_TRUE(dialog.userPicksItem(saveAndClose));
    }),
        QDialog::Accepted);
    EXPECT_EQ(m_dialog.selectedAcceptMenuOption(), 8);
}

TEST_F(RecordingShellTest, refusesControlsThatAreNotThere)
{
    run([](RecordingDialog& dialog) {
        EXPECT_FALSE(dialog.userClicks(QStringLiteral("Preview"))) << "the label has a mnemonic";
        EXPECT_FALSE(dialog.userClicks(compress)) << "a check box is no button";
        EXPECT_FALSE(dialog.userToggles(preview));
        EXPECT_FALSE(dialog.userPicksItem(preview));
        EXPECT_FALSE(dialog.userClicks(saveAndClose));
    });
    EXPECT_EQ(m_previews, 0);
    EXPECT_TRUE(m_compressed->getValue());
}

TEST_F(RecordingShellTest, refusesControlsThatAUserCannotReach)
{
    m_preview->setEnabled(false);
    m_compress->hide();
    m_option->setEnabled(false);
    run([](RecordingDialog& dialog) {
        EXPECT_FALSE(dialog.userClicks(preview));
        EXPECT_FALSE(dialog.userToggles(compress));
        EXPECT_FALSE(dialog.userPicksItem(saveAndClose));
    });
    EXPECT_EQ(m_previews, 0);
}

TEST_F(RecordingShellTest, looksWithoutLeavingATrace)
{
    std::vector<std::string> calls;
    run([&](RecordingDialog& dialog) {
        m_shell.clearCalls();
        dialog.folder();
        dialog.types();
        dialog.controls().isChecked(*dialog.controls().idOf(compress));
        dialog.controls().itemOf(saveAndClose);
        calls = m_shell.calls();
    });
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(RecordingShellTest, makesASingleCallFail)
{
    m_shell.failCalls("IFileDialog::Show", E_ACCESSDENIED);
    EXPECT_EQ(run([](RecordingDialog&) { ADD_FAILURE() << "it was shown"; }), QDialog::Rejected);
    EXPECT_THAT(m_shell.calls(), Contains("IFileDialog::Show(owner)"));
    m_shell.failNothing();
    int shown = 0;
    run([&](RecordingDialog&) { ++shown; });
    EXPECT_EQ(shown, 1);
}

TEST(RecordingShellScript, isCancelledWhereItDoesNothing)
{
    RecordingShell shell;
    const ui::ShellOverride guard(shell);
    QWidget window;
    ExtendedWinFileDialog dialog(window, "Save", "", "", "", QFileDialog::AcceptSave, false);
    dialog.selectFile(QStringLiteral("proposal.dat"));
    EXPECT_EQ(dialog.exec(), QDialog::Rejected);
    EXPECT_TRUE(dialog.selectedFiles().isEmpty());
}

TEST(RecordingShellScript, isCancelledWhereItStopsEarly)
{
    RecordingShell shell;
    const ui::ShellOverride guard(shell);
    QWidget window;
    ExtendedWinFileDialog saving(window, "Save", "", "", "", QFileDialog::AcceptSave, false);
    shell.script.duringShow = [](RecordingDialog& shown) { shown.userTypesName(QStringLiteral("typed.dat")); };
    EXPECT_EQ(saving.exec(), QDialog::Rejected);
    ExtendedWinFileDialog opening(window, "Open", "", "", "", QFileDialog::AcceptOpen, false);
    opening.setFileMode(QFileDialog::ExistingFile);
    shell.script.duringShow = [](RecordingDialog& shown) {
        shown.userTypesName(QStringLiteral("/no/such/file"));
        shown.userAccepts(); // the dialog stays open
    };
    EXPECT_EQ(opening.exec(), QDialog::Rejected);
    EXPECT_TRUE(opening.selectedFiles().isEmpty());
}

TEST(RecordingShellScript, acceptsWhereItHasResults)
{
    RecordingShell shell;
    const ui::ShellOverride guard(shell);
    QWidget window;
    ExtendedWinFileDialog dialog(window, "Open", "", "", "", QFileDialog::AcceptOpen, false);
    shell.script.results = QStringList(QDir::toNativeSeparators(QStringLiteral("/no/such/file")));
    EXPECT_EQ(dialog.exec(), QDialog::Accepted);
    EXPECT_EQ(dialog.selectedFiles(), shell.script.results);
    shell.script.duringShow = [](RecordingDialog& shown) { shown.userEntersFolder(QDir::rootPath()); };
    EXPECT_EQ(dialog.exec(), QDialog::Accepted) << "also where it does something else";
    shell.script.duringShow = [](RecordingDialog& shown) { shown.userCancels(); };
    EXPECT_EQ(dialog.exec(), QDialog::Rejected) << "but not against the user";
    shell.script.duringShow = nullptr;
    shell.script.showResult = E_ABORT;
    EXPECT_EQ(dialog.exec(), QDialog::Rejected) << "nor against the script";
}

TEST(RecordingShellLeaks, leaveOutTheDialogThatASaveFlowKeeps)
{
    RecordingShell shell;
    const ui::ShellOverride guard(shell);
    QWidget window;
    {
        SaveFileDialog flow(&window, "Save", "", "new", "Data (*.dat)", "");
        EXPECT_FALSE(flow.launch());
        EXPECT_EQ(shell.leakedObjects(), 0);
    }
    EXPECT_EQ(shell.liveObjects(), 1);
    EXPECT_EQ(shell.leakedObjects(), 0);
}

TEST(RecordingShellLeaks, showWhatAHostForgets)
{
    RecordingShell shell;
    const ui::ShellOverride guard(shell);
    QWidget window;
    {
        SaveFileDialog flow(&window, "Save", "", "new", "Data (*.dat)", "");
    }
    auto forgotten =
        std::make_unique<ExtendedWinFileDialog>(window, "Open", "", "", "", QFileDialog::AcceptOpen, false);
    EXPECT_EQ(shell.leakedObjects(), 1);
    ui::ComPtr<IShellItem> folder;
    ASSERT_EQ(shell.dialog()->GetFolder(folder.put()), S_OK);
    EXPECT_EQ(shell.leakedObjects(), 2);
    folder.reset();
    forgotten.reset();
    EXPECT_EQ(shell.leakedObjects(), 0);
}

TEST(RecordingShellLeaks, areCounted)
{
    RecordingShell shell;
    void* object = nullptr;
    ASSERT_EQ(shell.coCreateInstance(CLSID_FileOpenDialog, nullptr, 1, IID_IFileDialog, &object), S_OK);
    EXPECT_EQ(shell.liveObjects(), 1);
    ui::ComPtr<IFileDialog>(static_cast<IFileDialog*>(object)).reset();
    EXPECT_EQ(shell.liveObjects(), 0);
    EXPECT_EQ(shell.dialog(), nullptr);
}

} // namespace

} // namespace morvane::test
