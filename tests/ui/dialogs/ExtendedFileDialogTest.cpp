#include "support/FileDialogPage.h"
#include "support/ModalScript.h"
#include "support/QtPrinters.h"
#include "support/RecordingHelpLauncher.h"
#include "support/RecordingSettings.h"
#include "testing/RecordingDialog.h"
#include "testing/RecordingShell.h"

#include "host/InstanceOverride.h"
#include "ui/qt/dialogs/ExtendedFileDialog.h"
#include "ui/qt/dialogs/QExtendedFileDialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <memory>
#include <type_traits>

static_assert(!std::is_copy_constructible_v<ExtendedFileDialog>);
static_assert(!std::is_copy_assignable_v<ExtendedFileDialog>);
static_assert(std::has_virtual_destructor_v<ExtendedFileDialog>);

namespace morvane::test {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Read before any test can have changed it.
const bool nativeAtStart = ExtendedFileDialog::useNativeFileDialog();

const QString dataFilter = QStringLiteral("Data (*.dat)");
const QString allFilter = QStringLiteral("All (*)");

/** A facade whose both sides can be looked at: Shell calls, or the Qt dialog below the parent. */
class ExtendedFileDialogTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_folder.isValid());
        QFile file(path("a.dat"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    void TearDown() override
    {
        ExtendedFileDialog::setUseNativeFileDialog(true);
        EXPECT_EQ(m_shell.liveObjects() + m_shell.liveStrings() + m_shell.apartments(), 0);
    }

    using Facade = std::unique_ptr<ExtendedFileDialog>;
    Facade make(bool native, QFileDialog::AcceptMode mode = QFileDialog::AcceptOpen, const std::string& help = "")
    {
        ExtendedFileDialog::setUseNativeFileDialog(native);
        return std::make_unique<ExtendedFileDialog>(
            m_parent, "Caption", m_folder.path().toStdString(), "Data (*.dat);;All (*)", help, mode);
    }
    QExtendedFileDialog* qt() { return m_parent.findChild<QExtendedFileDialog*>(); }
    /** Runs the Qt dialog and lets the user act on it. */
    int runQt(ExtendedFileDialog& dialog, const std::function<void(FileDialogPage&)>& act)
    {
        ModalScript user;
        user.on<QFileDialog>([act](QFileDialog& window) {
            FileDialogPage page(window);
            act(page);
        });
        return dialog.exec();
    }
    QString path(const char* name) const { return m_folder.filePath(QString::fromUtf8(name)); }

    RecordingShell m_shell;
    RecordingHelpLauncher m_help;
    QWidget m_parent;
    QTemporaryDir m_folder;

private:
    RecordingSettings m_settings;
    ui::ShellOverride m_shellOverride{m_shell};
    InstanceOverride<HelpLauncher> m_helpOverride{m_help};
    InstanceOverride<ApplicationSettings> m_settingsOverride{m_settings};
};

TEST_F(ExtendedFileDialogTest, isNativeUnlessToldOtherwise)
{
    EXPECT_TRUE(nativeAtStart);
    ExtendedFileDialog::setUseNativeFileDialog(false);
    EXPECT_FALSE(ExtendedFileDialog::useNativeFileDialog());
    ExtendedFileDialog::setUseNativeFileDialog(true);
    EXPECT_TRUE(ExtendedFileDialog::useNativeFileDialog());
}

TEST_F(ExtendedFileDialogTest, makesOneOfTheTwoDialogs)
{
    const auto native = make(true);
    EXPECT_TRUE(m_shell.dialog());
    EXPECT_FALSE(qt());
    m_shell.clearCalls();
    const auto widgets = make(false);
    EXPECT_TRUE(qt());
    EXPECT_THAT(m_shell.calls(), IsEmpty());
}

TEST_F(ExtendedFileDialogTest, keepsItsKindWhenTheSwitchIsTurned)
{
    const auto native = make(true);
    const auto widgets = make(false);
    EXPECT_EQ(native->exec(), QDialog::Accepted);
    EXPECT_EQ(m_shell.count("IFileDialog::Show"), 1);
    ExtendedFileDialog::setUseNativeFileDialog(true);
    m_shell.clearCalls();
    EXPECT_EQ(runQt(*widgets, [](FileDialogPage& page) { page.dialog().reject(); }), QDialog::Rejected);
    EXPECT_THAT(m_shell.calls(), IsEmpty());
}

TEST_F(ExtendedFileDialogTest, handsItsArgumentsToTheNativeDialogWithoutAcceptMenu)
{
    auto dialog = make(true, QFileDialog::AcceptSave, "topic");
    m_shell.script.announcesOpening = false;
    m_shell.script.showResult = E_FAIL;
    m_shell.script.duringShow = [](RecordingDialog& user) { user.userClicks(0); };
    EXPECT_EQ(dialog->exec(), QDialog::Rejected);
    EXPECT_THAT(m_shell.calls(),
        ElementsAre("CoInitializeEx(null, 6)", "CoCreateInstance(FileSaveDialog, null, 1, IFileDialog)",
            "IFileDialog::QueryInterface(IFileDialogCustomize)", "IFileDialogCustomize::AddPushButton(0, \"&Help\")",
            "IFileDialogCustomize::MakeProminent(0)", "QISearch(IFileDialogEvents)", "IFileDialog::Advise(sink)",
            "IFileDialog::SetTitle(\"Caption\")", "IFileDialog::GetOptions()", "IFileDialog::SetOptions(0x800A)",
            ::testing::StartsWith("SHCreateItemFromParsingName("),
            "IFileDialog::SetFolder(" + m_folder.path().toStdString() + ")",
            "IFileDialog::SetFileTypes(2, \"Data\" \"*.dat\", \"All\" \"*\")", "IFileDialog::SetFileTypeIndex(1)",
            "IFileDialog::SetFileName(\"\")", "IFileDialog::Show(owner)", "QISearch(IFileDialogControlEvents)",
            "IFileDialog::Unadvise(1)"));
    EXPECT_THAT(m_help.topics, ElementsAre("topic"));
}

TEST_F(ExtendedFileDialogTest, handsItsArgumentsToTheQtDialog)
{
    const auto dialog = make(false, QFileDialog::AcceptSave, "topic");
    EXPECT_EQ(qt()->windowTitle(), QStringLiteral("Caption"));
    EXPECT_EQ(qt()->directory().path(), m_folder.path());
    EXPECT_EQ(qt()->nameFilters(), QStringList({dataFilter, allFilter}));
    EXPECT_EQ(qt()->acceptMode(), QFileDialog::AcceptSave);
    runQt(*dialog, [](FileDialogPage& page) {
        page.click(QDialogButtonBox::Help);
        page.dialog().reject();
    });
    EXPECT_THAT(m_help.topics, ElementsAre("topic"));
}

TEST_F(ExtendedFileDialogTest, returnsTheResultOfTheNativeDialog)
{
    const auto dialog = make(true);
    m_shell.script.results = QStringList(QStringLiteral("/x/\u00FC.dat"));
    EXPECT_EQ(dialog->exec(), 1);
    EXPECT_EQ(dialog->selectedFiles(), m_shell.script.results);
    m_shell.script.showResult = E_FAIL;
    EXPECT_EQ(dialog->exec(), 0);
    EXPECT_THAT(dialog->selectedFiles(), IsEmpty());
}

TEST_F(ExtendedFileDialogTest, returnsTheResultOfTheQtDialog)
{
    const auto dialog = make(false);
    dialog->setFileMode(QFileDialog::ExistingFile);
    EXPECT_EQ(runQt(*dialog, [](FileDialogPage& page) { page.enterName(QStringLiteral("a.dat")); }), 1);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(path("a.dat")));
    EXPECT_EQ(runQt(*dialog, [](FileDialogPage& page) { QTest::keyClick(&page.dialog(), Qt::Key_Escape); }), 0);
}

TEST_F(ExtendedFileDialogTest, runsTheQtDialogThroughItsVirtualExec)
{
    const auto dialog = make(false);
    int restored = 0;
    runQt(*dialog, [&](FileDialogPage& page) {
        restored = page.dialog().sidebarUrls().size();
        page.dialog().reject();
    });
    EXPECT_GT(restored, 0) << "the places are added by the dialog's own exec";
}

TEST_F(ExtendedFileDialogTest, selectsAFile)
{
    const auto native = make(true);
    native->selectFile(QStringLiteral("/elsewhere/b.dat"));
    native->exec();
    EXPECT_THAT(m_shell.calls(), Contains("IFileDialog::SetFileName(\"b.dat\")"));
    const auto widgets = make(false, QFileDialog::AcceptSave);
    widgets->selectFile(path("b.dat"));
    EXPECT_EQ(FileDialogPage(*qt()).name(), QStringLiteral("b.dat"));
    EXPECT_EQ(widgets->selectedFiles(), QStringList(path("b.dat")));
}

TEST_F(ExtendedFileDialogTest, setsTheFileMode)
{
    const auto native = make(true);
    native->setFileMode(QFileDialog::ExistingFiles);
    native->exec();
    EXPECT_THAT(m_shell.calls(), Contains("IFileDialog::SetOptions(0x120A)"));
    const auto widgets = make(false);
    widgets->setFileMode(QFileDialog::Directory);
    EXPECT_EQ(qt()->fileMode(), QFileDialog::Directory);
}

TEST_F(ExtendedFileDialogTest, setsAndTellsTheDirectory)
{
    for (const bool native : {true, false}) {
        const auto dialog = make(native);
        EXPECT_EQ(dialog->directory().path(), m_folder.path()) << native;
        dialog->setDirectory(QDir::rootPath());
        EXPECT_EQ(dialog->directory().path(), QDir::rootPath()) << native;
        if (!native) {
            EXPECT_EQ(qt()->directory().path(), QDir::rootPath());
        }
    }
}

TEST_F(ExtendedFileDialogTest, selectsAndTellsTheNameFilter)
{
    for (const bool native : {true, false}) {
        const auto dialog = make(native);
        EXPECT_EQ(dialog->selectedNameFilter(), dataFilter) << native;
        dialog->selectNameFilter(allFilter);
        EXPECT_EQ(dialog->selectedNameFilter(), allFilter) << native;
    }
}

TEST_F(ExtendedFileDialogTest, unknownFilterSelectsNoneInTheNativeDialogAndNothingInTheQtDialog)
{
    const auto native = make(true);
    native->selectNameFilter(QStringLiteral("Other (*.o)"));
    EXPECT_EQ(native->selectedNameFilter(), QString());
    const auto widgets = make(false);
    widgets->selectNameFilter(QStringLiteral("Other (*.o)"));
    EXPECT_EQ(widgets->selectedNameFilter(), dataFilter);
}

TEST_F(ExtendedFileDialogTest, setsAndTellsTheNameFilters)
{
    const QStringList filters({QStringLiteral("A (*.a)"), QStringLiteral("B (*.b)"), QStringLiteral("C (*.c)")});
    for (const bool native : {true, false}) {
        const auto dialog = make(native);
        EXPECT_EQ(dialog->nameFilters(), QStringList({dataFilter, allFilter})) << native;
        dialog->setNameFilters(filters);
        EXPECT_EQ(dialog->nameFilters(), filters) << native;
        dialog->nameFilters().clear();
        EXPECT_EQ(dialog->nameFilters(), filters) << native;
    }
}

TEST_F(ExtendedFileDialogTest, setsWhetherOverwritingIsConfirmed)
{
    for (const bool on : {true, false}) {
        const auto native = make(true, QFileDialog::AcceptSave);
        native->setDontConfirmOverwrite(!on);
        native->setDontConfirmOverwrite(on);
        m_shell.clearCalls();
        native->exec();
        EXPECT_THAT(
            m_shell.calls(), Contains(on ? "IFileDialog::SetOptions(0x8008)" : "IFileDialog::SetOptions(0x800A)"));
        const auto widgets = make(false, QFileDialog::AcceptSave);
        widgets->setDontConfirmOverwrite(!on);
        widgets->setDontConfirmOverwrite(on);
        EXPECT_EQ(qt()->testOption(QFileDialog::DontConfirmOverwrite), on);
    }
}

TEST_F(ExtendedFileDialogTest, showsDirectoriesOnlyInTheQtDialogAlone)
{
    const auto native = make(true);
    m_shell.clearCalls();
    native->setShowDirectoriesOnly(true);
    EXPECT_THAT(m_shell.calls(), IsEmpty());
    native->exec();
    EXPECT_THAT(m_shell.calls(), Contains("IFileDialog::SetOptions(0xA)"));
    const auto widgets = make(false);
    widgets->setShowDirectoriesOnly(true);
    EXPECT_TRUE(qt()->testOption(QFileDialog::ShowDirsOnly));
    widgets->setShowDirectoriesOnly(false);
    EXPECT_FALSE(qt()->testOption(QFileDialog::ShowDirsOnly));
}

TEST_F(ExtendedFileDialogTest, destroysItsDialog)
{
    auto widgets = make(false);
    ASSERT_TRUE(qt());
    widgets.reset();
    EXPECT_FALSE(qt());
    auto native = make(true);
    native.reset();
    EXPECT_FALSE(m_shell.dialog());
    EXPECT_EQ(m_shell.calls().back(), "CoUninitialize()");
}

TEST_F(ExtendedFileDialogTest, survivesANativeDialogThatCannotBeMade)
{
    m_shell.failCalls("CoCreateInstance");
    const auto dialog = make(true);
    EXPECT_EQ(dialog->exec(), QDialog::Rejected);
    EXPECT_THAT(dialog->selectedFiles(), IsEmpty());
    EXPECT_FALSE(qt()) << "the kind is not changed behind the host's back";
}

} // namespace

} // namespace morvane::test
