// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// A wildcard in the name field filters the listed files, and is never accepted as a name.
#include "WidgetShellRunTest.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

namespace morvane::test {

namespace {

using namespace morvane::ui;
using ::testing::AnyOf;
using ::testing::Eq;

const QStringList allNames = {QStringLiteral("a.txt"), QStringLiteral("b.txt"), QStringLiteral("c.dat"),
    QStringLiteral("d.TXT"), QStringLiteral("inner")};

class WidgetShellWildcard : public WidgetShellRun
{
protected:
    static bool shows(QFileDialog& window, const QStringList& names)
    {
        if (QTest::qWaitFor([&] { return shownFiles(window) == names; })) {
            return true;
        }
        ADD_FAILURE() << "listed are " << shownFiles(window).join(QStringLiteral(", ")).toStdString();
        return false;
    }
    /** Types the wildcard and presses Enter, or the accept button. */
    static void filter(QFileDialog& window, const QString& wildcard, bool withEnter)
    {
        const FileDialogDriver driver = FileDialogDriver::whenActive(window);
        driver.typeName(wildcard);
        if (withEnter) {
            driver.pressEnter();
        } else {
            driver.pressAccept();
        }
        EXPECT_TRUE(window.isVisible()) << wildcard.toStdString();
    }
    void setTwoTypes()
    {
        setTypes({{QStringLiteral("Text"), QStringLiteral("*.txt")}, {QStringLiteral("Every"), QStringLiteral("*")}});
    }
};

TEST_F(WidgetShellWildcard, filtersWhileTheDialogStaysInEachModeAndHoweverItIsAccepted)
{
    const QStringList dataOnly = {QStringLiteral("c.dat"), QStringLiteral("inner")};
    for (const CLSID& clsid : {CLSID_FileOpenDialog, CLSID_FileSaveDialog}) {
        for (const FILEOPENDIALOGOPTIONS several :
            {FILEOPENDIALOGOPTIONS(0), FILEOPENDIALOGOPTIONS(FOS_ALLOWMULTISELECT)}) {
            for (const bool withEnter : {false, true}) {
                make(clsid);
                change(several, FOS_FILEMUSTEXIST | FOS_PATHMUSTEXIST);
                EXPECT_EQ(show([&](QFileDialog& window) {
                    shows(window, allNames);
                    filter(window, QStringLiteral("*.dat"), withEnter);
                    shows(window, dataOnly);
                    filter(window, QStringLiteral("*"), withEnter);
                    shows(window, allNames);
                    window.reject();
                }),
                    cancelled);
                EXPECT_EQ(sink.count("OnFileOk"), 0);
            }
        }
    }
}

TEST_F(WidgetShellWildcard, isWrittenIntoTheTypeUntilAnotherIsPicked)
{
    setTwoTypes();
    show([&](QFileDialog& window) {
        const FileDialogDriver driver = FileDialogDriver::whenActive(window);
        QComboBox& types = driver.typeCombo();
        shows(window,
            {QStringLiteral("a.txt"), QStringLiteral("b.txt"), QStringLiteral("d.TXT"), QStringLiteral("inner")});
        filter(window, QStringLiteral("*.dat"), true);
        shows(window, {QStringLiteral("c.dat"), QStringLiteral("inner")});
        EXPECT_EQ(types.itemText(0), QStringLiteral("Text (*.dat)"));
        filter(window, QStringLiteral("a*"), true);
        shows(window, {QStringLiteral("a.txt"), QStringLiteral("inner")});
        EXPECT_EQ(types.itemText(0), QStringLiteral("Text (a*)"));
        driver.stepToType(0);
        shows(window, {QStringLiteral("a.txt"), QStringLiteral("inner")});
        EXPECT_EQ(types.itemText(0), QStringLiteral("Text (a*)")) << "the same type picked again";
        driver.stepToType(1);
        shows(window, allNames);
        EXPECT_EQ(types.itemText(0), QStringLiteral("Text"));
        EXPECT_EQ(types.count(), 2);
        UINT index = 0;
        EXPECT_EQ(dialog->GetFileTypeIndex(&index), S_OK);
        EXPECT_EQ(index, 2u);
        window.reject();
    });
}

TEST_F(WidgetShellWildcard, givesWayToATypeThatTheHostChooses)
{
    setTwoTypes();
    show([&](QFileDialog& window) {
        filter(window, QStringLiteral("*.dat"), true);
        EXPECT_EQ(dialog->SetFileTypeIndex(1), S_OK);
        shows(window,
            {QStringLiteral("a.txt"), QStringLiteral("b.txt"), QStringLiteral("d.TXT"), QStringLiteral("inner")});
        EXPECT_EQ(FileDialogDriver::whenActive(window).typeCombo().itemText(0), QStringLiteral("Text"));
        window.reject();
    });
}

TEST_F(WidgetShellWildcard, takesTheFolderInFrontOfIt)
{
    QFile file(folder.filePath(QStringLiteral("inner/e.dat")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    QFile other(folder.filePath(QStringLiteral("inner/e.txt")));
    ASSERT_TRUE(other.open(QIODevice::WriteOnly));
    show([&](QFileDialog& window) {
        const FileDialogDriver driver = FileDialogDriver::whenActive(window);
        shows(window, allNames);
        filter(window, QStringLiteral("inner/*.dat"), true);
        shows(window, {QStringLiteral("e.dat")});
        EXPECT_EQ(driver.name(), QStringLiteral("*.dat"));
        driver.pressEnter();
        EXPECT_TRUE(window.isVisible()) << "it is still a wildcard";
        driver.typeName(QStringLiteral("none/*.dat"));
        pressAcceptAndReadMessage(driver, "none\nDirectory not found");
        shows(window, {QStringLiteral("e.dat")});
        window.reject();
    });
}

TEST_F(WidgetShellWildcard, isNoSelection)
{
    show([&](QFileDialog& window) {
        FileDialogDriver::whenActive(window).typeName(QStringLiteral("*.dat"));
        ComPtr<IShellItem> item;
        EXPECT_EQ(dialog->GetCurrentSelection(item.put()), E_FAIL);
        window.reject();
    });
}

TEST_F(WidgetShellWildcard, staysOneInTheNextRunAndWithAnotherEnding)
{
    change(0, FOS_FILEMUSTEXIST);
    show([&](QFileDialog& window) {
        filter(window, QStringLiteral("*.dat"), true);
        window.reject();
    });
    EXPECT_EQ(show([&](QFileDialog& window) {
        const FileDialogDriver driver = FileDialogDriver::whenActive(window);
        EXPECT_EQ(driver.name(), QStringLiteral("*.dat"));
        driver.pressAccept();
        shows(window, {QStringLiteral("c.dat"), QStringLiteral("inner")});
        EXPECT_EQ(dialog->SetFileName(text("*.txt").c_str()), S_OK); // as for another type
        driver.pressAccept();
        EXPECT_TRUE(window.isVisible());
        window.reject();
    }),
        cancelled);
    EXPECT_EQ(sink.count("OnFileOk"), 0);
}

TEST_F(WidgetShellWildcard, isWhatTheUserTypesAndNotANameThatTheHostSetsOrThatIsPicked)
{
    change(0, FOS_FILEMUSTEXIST);
    dialog->SetFileName(text("report.png *.jpg").c_str());
    EXPECT_EQ(show([](QFileDialog& window) { FileDialogDriver::whenActive(window).pressAccept(); }), S_OK);
    EXPECT_EQ(results(), QStringList(QStringLiteral("report.png *.jpg")));
    QFile file(folder.filePath(QStringLiteral("x*y.txt")));
    if (!file.open(QIODevice::WriteOnly)) {
        return; // not a valid name on every platform
    }
    dialog->SetFileName(text("").c_str());
    EXPECT_EQ(show([](QFileDialog& window) {
        const FileDialogDriver driver = FileDialogDriver::whenActive(window);
        driver.clickFile(QStringLiteral("x*y.txt"));
        driver.pressAccept();
    }),
        S_OK);
    EXPECT_EQ(results(), QStringList(QStringLiteral("x*y.txt")));
}

TEST_F(WidgetShellWildcard, isNoNameOfAFolderEither)
{
    change(FOS_PICKFOLDERS);
    show([&](QFileDialog& window) {
        const FileDialogDriver driver = FileDialogDriver::whenActive(window);
        driver.typeName(QStringLiteral("in*"));
        pressAcceptAndReadMessage(driver, "Directory not found");
        window.reject();
    });
    EXPECT_EQ(sink.count("OnFileOk"), 0);
}

} // namespace

} // namespace morvane::test
