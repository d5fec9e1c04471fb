// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ExtendedWinFileDialogTest.h"

#include "property/Property.h"
#include "support/ActiveWindow.h"
#include "support/FileDialogDriver.h"
#include "support/ModalScript.h"
#include "ui/qt/dialogs/shell/WidgetShell_p.h"

#include <boost/make_shared.hpp>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QMessageBox>
#include <QTest>

namespace morvane::test {

namespace {

using ::testing::IsEmpty;

/** The dialog without a Shell of the operating system, used with keys and mouse. */
class ExtendedWinFileDialogWidgets : public ExtendedWinFileDialogTest
{
protected:
    void SetUp() override
    {
        for (const char* const name : {"a.dat", "b.dat", "c.txt"}) {
            makeFile(QLatin1String(name));
        }
        QDir(QString::fromStdString(folder())).mkdir(QStringLiteral("inner"));
        m_parent->show();
        setActiveWindow(*m_parent);
    }
    void TearDown() override { EXPECT_TRUE(m_shell.calls().empty()); }

    Dialog dialogIn(bool saving, const std::string& filter = "", bool acceptMenu = false)
    {
        Arguments arguments;
        arguments.directory = folder();
        arguments.filter = filter;
        arguments.saving = saving;
        arguments.acceptMenu = acceptMenu;
        arguments.helpTopic = "topic";
        return make(arguments);
    }
    /** Cancels when @p act has not closed the dialog. */
    QDialog::DialogCode use(ExtendedWinFileDialog& dialog, const std::function<void(FileDialogDriver&)>& act)
    {
        m_user.on<QFileDialog>(FileDialogDriver::playing(act));
        return dialog.exec();
    }
    static QAbstractButton* control(const FileDialogDriver& driver, const char* label)
    {
        return FileDialogDriver::whenActive(driver.dialog()).control(QString::fromUtf8(label));
    }
    static void press(const FileDialogDriver& driver, const char* label)
    {
        QAbstractButton* const button = control(driver, label);
        ASSERT_TRUE(button) << label;
        QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(8, button->height() / 2));
    }

    ModalScript m_user;
    ui::WidgetShell m_widgets{ui::WidgetShell::Appearance::AlwaysWidgets};
    ui::ShellOverride m_widgetsOverride{m_widgets};
};

TEST_F(ExtendedWinFileDialogWidgets, opensTheTypedFile)
{
    const auto dialog = dialogIn(false, "Data (*.dat);;All (*)");
    dialog->setFileMode(QFileDialog::ExistingFile);
    EXPECT_EQ(use(*dialog,
                  [](FileDialogDriver& driver) {
                      EXPECT_EQ(driver.dialog().windowTitle(), QStringLiteral("Measurement"));
                      EXPECT_TRUE(driver.waitForListed(
                          {QStringLiteral("a.dat"), QStringLiteral("b.dat"), QStringLiteral("inner")}));
                      driver.enterName(QStringLiteral("b.dat"));
                  }),
        QDialog::Accepted);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(nativePath(QStringLiteral("b.dat"))));
    EXPECT_EQ(dialog->directory().path().toStdString(), folder());
}

TEST_F(ExtendedWinFileDialogWidgets, opensTheClickedFile)
{
    const auto dialog = dialogIn(false);
    dialog->setFileMode(QFileDialog::ExistingFile);
    EXPECT_EQ(use(*dialog, [](FileDialogDriver& driver) { driver.doubleClickFile(QStringLiteral("c.txt")); }),
        QDialog::Accepted);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(nativePath(QStringLiteral("c.txt"))));
}

TEST_F(ExtendedWinFileDialogWidgets, opensSeveralFiles)
{
    const auto dialog = dialogIn(false);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    EXPECT_EQ(use(*dialog,
                  [](FileDialogDriver& driver) {
                      driver.clickFile(QStringLiteral("a.dat"));
                      driver.clickFile(QStringLiteral("c.txt"), Qt::ControlModifier);
                      driver.click(QDialogButtonBox::Open);
                  }),
        QDialog::Accepted);
    QStringList files = dialog->selectedFiles();
    files.sort();
    EXPECT_EQ(files, QStringList({nativePath(QStringLiteral("a.dat")), nativePath(QStringLiteral("c.txt"))}));
}

TEST_F(ExtendedWinFileDialogWidgets, picksAFolder)
{
    const auto dialog = dialogIn(false);
    dialog->setFileMode(QFileDialog::Directory);
    EXPECT_EQ(use(*dialog,
                  [](FileDialogDriver& driver) {
                      driver.clickFile(QStringLiteral("inner"));
                      FileDialogDriver::whenActive(driver.dialog()).pressAccept();
                  }),
        QDialog::Accepted);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(nativePath(QStringLiteral("inner"))));
}

TEST_F(ExtendedWinFileDialogWidgets, cancelsWithEscape)
{
    const auto dialog = dialogIn(false);
    EXPECT_EQ(use(*dialog, [](FileDialogDriver& driver) { QTest::keyClick(&driver.dialog(), Qt::Key_Escape); }),
        QDialog::Rejected);
    EXPECT_THAT(dialog->selectedFiles(), IsEmpty());
}

TEST_F(ExtendedWinFileDialogWidgets, rewritesTheTypedExtensionWithTheType)
{
    const auto dialog = dialogIn(true, "Data (*.dat);;All (*)");
    std::vector<int> seen;
    dialog->currentFilterIndex()->signalValueChanged.connect([&](const int& index) { seen.push_back(index); });
    use(*dialog, [&](FileDialogDriver& driver) {
        driver.typeName(QStringLiteral("out.dat"));
        driver.pickTypeWithMouse(1);
        EXPECT_EQ(driver.name(), QStringLiteral("out"));
        EXPECT_EQ(dialog->selectedNameFilter(), QStringLiteral("All (*)"));
        driver.pickTypeWithKeys(0);
        EXPECT_EQ(driver.name(), QStringLiteral("out.dat"));
    });
    EXPECT_THAT(seen, ::testing::ElementsAre(2, 1));
}

TEST_F(ExtendedWinFileDialogWidgets, savesTheNewNameThatItStartsWith)
{
    const auto dialog = dialogIn(true, "Data (*.dat);;All (*)");
    dialog->selectFile(QStringLiteral("/elsewhere/new.dat"));
    EXPECT_EQ(use(*dialog,
                  [](FileDialogDriver& driver) {
                      EXPECT_EQ(driver.name(), QStringLiteral("new.dat"));
                      driver.click(QDialogButtonBox::Save);
                  }),
        QDialog::Accepted);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(nativePath(QStringLiteral("new.dat"))));
}

TEST_F(ExtendedWinFileDialogWidgets, asksBeforeOverwriting)
{
    const auto dialog = dialogIn(true);
    m_user.on<QFileDialog>([](QFileDialog& window) {
        FileDialogDriver driver(window);
        driver.enterName(QStringLiteral("a.dat"));
        EXPECT_TRUE(window.isVisible()) << "refused";
        driver.enterName(QStringLiteral("a.dat"));
    });
    m_user.on<QMessageBox>([](QMessageBox& box) { QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton); });
    m_user.on<QMessageBox>([](QMessageBox& box) { QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton); });
    EXPECT_EQ(dialog->exec(), QDialog::Accepted);
    EXPECT_TRUE(m_user.finished());
    EXPECT_EQ(dialog->selectedFiles(), QStringList(nativePath(QStringLiteral("a.dat"))));
}

TEST_F(ExtendedWinFileDialogWidgets, overwritesWithoutQuestionWhenTold)
{
    const auto dialog = dialogIn(true);
    dialog->setDontConfirmOverwrite(true);
    EXPECT_EQ(
        use(*dialog, [](FileDialogDriver& driver) { driver.enterName(QStringLiteral("a.dat")); }), QDialog::Accepted);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(nativePath(QStringLiteral("a.dat"))));
}

TEST_F(ExtendedWinFileDialogWidgets, showsHelp)
{
    const auto dialog = dialogIn(false);
    use(*dialog, [](FileDialogDriver& driver) { press(driver, "&Help"); });
    EXPECT_THAT(m_help.topics, ::testing::ElementsAre("topic"));
}

TEST_F(ExtendedWinFileDialogWidgets, aButtonMayCloseTheDialog)
{
    const auto dialog = dialogIn(false);
    dialog->addCustomButton("Use defaults", [&] { dialog->close(); });
    EXPECT_EQ(use(*dialog,
                  [](FileDialogDriver& driver) {
                      driver.typeName(QStringLiteral("a.dat"));
                      press(driver, "Use defaults");
                  }),
        QDialog::Accepted);
    EXPECT_THAT(dialog->selectedFiles(), IsEmpty()) << "typed, but not chosen";
}

TEST_F(ExtendedWinFileDialogWidgets, bindsACheckBoxToItsProperty)
{
    const auto dialog = dialogIn(true);
    const auto compress = boost::make_shared<Property<bool>>(true);
    dialog->addCustomCheckBox("Compress", compress);
    use(*dialog, [&](FileDialogDriver& driver) {
        EXPECT_TRUE(control(driver, "Compress")->isChecked());
        press(driver, "Compress");
        EXPECT_FALSE(compress->value());
    });
    use(*dialog, [&](FileDialogDriver& driver) {
        EXPECT_FALSE(control(driver, "Compress")->isChecked()) << "the second run keeps the state";
        press(driver, "Compress");
    });
    EXPECT_TRUE(compress->value());
}

TEST_F(ExtendedWinFileDialogWidgets, reportsTheOptionThatWasPickedInTheMenu)
{
    const auto dialog = dialogIn(true, "", true);
    dialog->addAcceptButtonOption("Save", 10);
    dialog->addAcceptButtonOption("Save and close", 20);
    EXPECT_EQ(use(*dialog,
                  [](FileDialogDriver& driver) {
                      driver.typeName(QStringLiteral("new.dat"));
                      FileDialogDriver::whenActive(driver.dialog()).pickAcceptItem(QStringLiteral("Save and close"));
                  }),
        QDialog::Accepted);
    EXPECT_EQ(dialog->selectedAcceptMenuOption(), 20);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(nativePath(QStringLiteral("new.dat"))));
    dialog->clearAcceptMenuOptions();
    dialog->addAcceptButtonOption("Keep", 30);
    use(*dialog, [](FileDialogDriver& driver) { QTest::keyClick(&driver.dialog(), Qt::Key_Escape); });
    EXPECT_EQ(dialog->selectedAcceptMenuOption(), 30);
}

TEST_F(ExtendedWinFileDialogWidgets, changesItsControlsWhileItRuns)
{
    const auto dialog = dialogIn(false);
    int clicks = 0;
    QWidget* const target = dialog->addCustomButton("Target", [&] { ++clicks; });
    QWidget* const early = dialog->addCustomButton("Early", [] {});
    early->hide();
    dialog->addCustomButton("Disable", [&] { target->setEnabled(false); });
    dialog->addCustomButton("Hide", [&] { target->hide(); });
    dialog->addCustomButton("Restore", [&] {
        target->setEnabled(true);
        target->show();
        early->show();
    });
    use(*dialog, [](FileDialogDriver& driver) {
        EXPECT_FALSE(control(driver, "Early"));
        press(driver, "Target");
        press(driver, "Disable");
        EXPECT_FALSE(control(driver, "Target")->isEnabled());
        press(driver, "Target");
        press(driver, "Hide");
        EXPECT_FALSE(control(driver, "Target"));
        press(driver, "Restore");
        EXPECT_TRUE(control(driver, "Early"));
        press(driver, "Target");
    });
    EXPECT_EQ(clicks, 2);
}

TEST_F(ExtendedWinFileDialogWidgets, keepsFolderNameAndTypeForTheSecondRun)
{
    const auto dialog = dialogIn(true, "Data (*.dat);;All (*)");
    use(*dialog, [](FileDialogDriver& driver) {
        driver.pickTypeWithKeys(1);
        FileDialogDriver::whenActive(driver.dialog()).enterFolder(QStringLiteral("inner"));
        driver.typeName(QStringLiteral("kept.raw"));
    });
    EXPECT_EQ(dialog->directory().path(), path(QStringLiteral("inner")));
    EXPECT_EQ(dialog->selectedNameFilter(), QStringLiteral("All (*)"));
    EXPECT_EQ(use(*dialog,
                  [](FileDialogDriver& driver) {
                      EXPECT_EQ(driver.typeCombo().currentIndex(), 1);
                      driver.enterName(QStringLiteral("again.raw"));
                  }),
        QDialog::Accepted);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(nativePath(QStringLiteral("inner/again.raw"))));
}

} // namespace

} // namespace morvane::test
