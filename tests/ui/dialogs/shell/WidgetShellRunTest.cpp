// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The texts and the types of a dialog of widgets.
#include "WidgetShellRunTest.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPushButton>

namespace morvane::test {

namespace {

using namespace morvane::ui;

TEST_F(WidgetShellRun, textsReachTheWindow)
{
    dialog->SetTitle(text("Pick  a <b>file</b>").c_str());
    dialog->SetOkButtonLabel(text("Ta&ke").c_str());
    dialog->SetFileNameLabel(text("Called:").c_str());
    show([](QFileDialog& window) {
        EXPECT_EQ(window.windowTitle(), QStringLiteral("Pick  a <b>file</b>"));
        EXPECT_EQ(FileDialogDriver::whenActive(window).acceptButton().text(), QStringLiteral("Ta&ke"));
        EXPECT_EQ(window.labelText(QFileDialog::FileName), QStringLiteral("Called:"));
        window.reject();
    });
}

TEST_F(WidgetShellRun, anEmptyTitleLeavesQtsOwn)
{
    dialog->SetTitle(text("").c_str());
    show([](QFileDialog& window) {
        EXPECT_FALSE(window.windowTitle().isEmpty());
        window.reject();
    });
}

TEST_F(WidgetShellRun, acceptingIsOfferedWhileThereIsAName)
{
    for (const bool picksFolders : {false, true}) {
        change(picksFolders ? FILEOPENDIALOGOPTIONS(FOS_PICKFOLDERS) : 0);
        dialog->SetFileName(text("").c_str());
        show([&](QFileDialog& window) {
            const FileDialogDriver driver = FileDialogDriver::whenActive(window);
            const auto* const cancel = window.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel);
            const auto expectOffered = [&](const char* when, bool offered) {
                EXPECT_EQ(driver.acceptButton().isEnabled(), offered || picksFolders) << when << " " << picksFolders;
                EXPECT_TRUE(cancel->isEnabled()) << when << " " << picksFolders;
            };
            expectOffered("at first", false);
            driver.typeName(QStringLiteral("a.txt"));
            expectOffered("with a name", true);
            driver.typeName(QString());
            expectOffered("deleted", false);
            dialog->SetFileName(text("b.txt").c_str());
            expectOffered("with the host's name", true);
            dialog->SetFileName(text("").c_str());
            expectOffered("taken back", false);
            window.reject();
        });
    }
}

TEST_F(WidgetShellRun, typesAreChosenByPositionWhateverTheirTexts)
{
    const QString odd = QString::fromUtf8("A  (x)  größer");
    setTypes({{odd, QStringLiteral("*.txt")}, {odd, QStringLiteral("*.dat")}, {QString(), QStringLiteral("*.*")},
        {QStringLiteral("Empty"), QString()}});
    show([&](QFileDialog& window) {
        const FileDialogDriver driver = FileDialogDriver::whenActive(window);
        ASSERT_EQ(driver.typeCombo().count(), 4);
        EXPECT_EQ(driver.typeCombo().itemText(1), odd);
        EXPECT_TRUE(QTest::qWaitFor([&] {
            return shownFiles(window) == (QStringList{QStringLiteral("a.txt"), QStringLiteral("b.txt"),
                                             QStringLiteral("d.TXT"), QStringLiteral("inner")});
        }));
        driver.stepToType(1);
        EXPECT_TRUE(QTest::qWaitFor([&] {
            return shownFiles(window) == (QStringList{QStringLiteral("c.dat"), QStringLiteral("inner")});
        }));
        UINT index = 0;
        dialog->GetFileTypeIndex(&index);
        EXPECT_EQ(index, 2u);
        driver.stepToType(2);
        EXPECT_TRUE(QTest::qWaitFor([&] { return shownFiles(window).size() == 5; }));
        driver.stepToType(3);
        EXPECT_TRUE(QTest::qWaitFor([&] { return shownFiles(window).size() == 5; }));
        window.reject();
    });
    EXPECT_EQ(sink.count("OnTypeChange 2"), 1);
}

TEST_F(WidgetShellRun, aLongDescriptionDoesNotWidenTheWindow)
{
    int widths[2] = {0, 0};
    for (const int lengthy : {0, 1}) {
        make(CLSID_FileOpenDialog);
        setTypes({{QString(lengthy == 0 ? 4 : 400, QLatin1Char('W')), QStringLiteral("*.txt")}});
        show([&](QFileDialog& window) {
            widths[lengthy] = window.sizeHint().width();
            window.reject();
        });
    }
    EXPECT_EQ(widths[0], widths[1]);
}

TEST_F(WidgetShellRun, switchingTypesLeavesTheTypedSuffixAlone)
{
    make(CLSID_FileSaveDialog);
    setTypes({{QStringLiteral("Text (*.txt)"), QStringLiteral("*.txt")},
        {QStringLiteral("Table (*.csv)"), QStringLiteral("*.csv")},
        {QStringLiteral("Data (*.dat)"), QStringLiteral("*.dat")}});
    show([&](QFileDialog& window) {
        const FileDialogDriver driver = FileDialogDriver::whenActive(window);
        driver.typeName(QStringLiteral("name.old"));
        QTest::keyClick(&driver.typeCombo(), Qt::Key_End);
        EXPECT_EQ(driver.typeCombo().currentIndex(), 2);
        EXPECT_EQ(driver.name(), QStringLiteral("name.old"));
        driver.stepToType(0);
        EXPECT_EQ(driver.name(), QStringLiteral("name.old"));
        window.reject();
    });
}

TEST_F(WidgetShellRun, showsWidgetsWhereTheDesktopHasNoDialogOfItsOwn)
{
    if (QGuiApplication::platformName() == QLatin1String("windows")) {
        GTEST_SKIP() << "Windows has a dialog of its own";
    }
    WidgetShell plain;
    ASSERT_EQ(dialog->Unadvise(cookie), S_OK);
    ASSERT_EQ(
        plain.coCreateInstance(CLSID_FileSaveDialog, nullptr, CLSCTX_INPROC_SERVER, IID_IFileDialog, dialog.putVoid()),
        S_OK);
    ASSERT_EQ(dialog->Advise(&sink, &cookie), S_OK);
    setTypes({{QStringLiteral("Text"), QStringLiteral("*.txt")}, {QStringLiteral("Data"), QStringLiteral("*.dat")}});
    dialog->SetFileName(text("new.old").c_str());
    const HRESULT hr = show([&](QFileDialog& window) {
        const FileDialogDriver driver = FileDialogDriver::whenActive(window);
        driver.stepToType(1);
        EXPECT_EQ(driver.name(), QStringLiteral("new.old"));
        driver.typeName(folder.filePath(QStringLiteral("new.txt")));
        driver.pressAccept();
    });
    EXPECT_EQ(hr, S_OK);
    EXPECT_EQ(sink.count("OnTypeChange 2"), 1);
}

} // namespace

} // namespace morvane::test
