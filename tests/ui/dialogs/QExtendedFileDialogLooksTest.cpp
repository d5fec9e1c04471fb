// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The appearance of the dialog when it opens for the first time.
#include "FileDialogTest.h"

#include <QComboBox>
#include <QLabel>
#include <QSettings>
#include <QSplitter>
#include <QTreeView>

using namespace morvane::test;

namespace {

class QExtendedFileDialogLooks : public FileDialogTest
{
protected:
    QExtendedFileDialogLooks()
    {
        makeFiles({QStringLiteral("a.dat"), QStringLiteral("b.csv"),
            QStringLiteral("a name that is so long that no list of this width would ever show it whole.dat")});
        makeFolder(QStringLiteral("inner"));
        // Qt stores here the widths that a user has set in any program.
        QSettings(QSettings::UserScope, QStringLiteral("QtProject")).remove(QStringLiteral("FileDialog"));
    }

    static void waitForWhole(const FileDialogDriver& driver)
    {
        EXPECT_TRUE(waitUntil([&] { return driver.listed().size() >= 3 && driver.cutParts().isEmpty(); }))
            << driver.cutParts().join(QStringLiteral("; ")).toStdString();
    }
};

} // namespace

TEST_F(QExtendedFileDialogLooks, firstOpeningCutsNeitherPlacesNorColumns)
{
    const Dialog dialog = openDialog("All (*)");
    run(*dialog, [](FileDialogDriver& driver) { waitForWhole(driver); });
}

TEST_F(QExtendedFileDialogLooks, firstOpeningInABiggerFontCutsNothingEither)
{
    const Dialog dialog = openDialog("All (*)");
    QFont font = dialog->font();
    font.setPointSizeF(font.pointSizeF() * 1.3);
    dialog->setFont(font);
    dialog->setDefaultSize(QSize(900, 500));
    run(*dialog, [](FileDialogDriver& driver) {
        waitForWhole(driver);
        EXPECT_EQ(driver.dialog().size(), QSize(900, 500));
    });
}

TEST_F(QExtendedFileDialogLooks, columnsAreFittedWhenTheyAreShownLater)
{
    const Dialog dialog = openDialog("All (*)");
    dialog->setViewMode(QFileDialog::List);
    run(*dialog, [](FileDialogDriver& driver) {
        EXPECT_TRUE(waitUntil([&] { return driver.listed().size() == 4; }));
        driver.dialog().setViewMode(QFileDialog::Detail);
        waitForWhole(driver);
    });
}

TEST_F(QExtendedFileDialogLooks, widthsAreTheUsersOnceTheFolderIsRead)
{
    const Dialog dialog = openDialog("All (*)");
    makeFiles({QStringLiteral("inner/c.dat"), QStringLiteral("inner/d.dat"), QStringLiteral("inner/e.dat")});
    run(*dialog, [&](FileDialogDriver& driver) {
        waitForWhole(driver);
        auto& tree = *driver.dialog().findChild<QTreeView*>();
        auto& splitter = *driver.dialog().findChild<QSplitter*>();
        tree.setColumnWidth(0, 250);
        tree.setColumnWidth(3, 40);
        splitter.setSizes({60, 500});
        const QList<int> sizes = splitter.sizes();
        driver.dialog().setDirectory(path(QStringLiteral("inner")));
        driver.waitForListed({QStringLiteral("c.dat"), QStringLiteral("d.dat"), QStringLiteral("e.dat")});
        driver.dialog().setViewMode(QFileDialog::List);
        driver.dialog().setViewMode(QFileDialog::Detail);
        EXPECT_EQ(tree.columnWidth(0), 250);
        EXPECT_EQ(tree.columnWidth(3), 40);
        EXPECT_EQ(splitter.sizes(), sizes);
    });
}

TEST_F(QExtendedFileDialogLooks, widthsOfALaterOpeningAreLeftAlone)
{
    m_settings.values["QExtendedFileDialog/Geometry_v2"] = QWidget().saveGeometry();
    const Dialog dialog = openDialog("All (*)");
    auto& tree = *dialog->findChild<QTreeView*>();
    tree.setColumnWidth(3, 40);
    run(*dialog, [&](FileDialogDriver& driver) {
        EXPECT_TRUE(waitUntil([&] { return driver.listed().size() == 4; }));
        EXPECT_EQ(tree.columnWidth(3), 40);
    });
}

TEST_F(QExtendedFileDialogLooks, typesAreNotShownWhereFoldersArePicked)
{
    const Dialog dialog = openDialog("All (*)");
    const auto isShown = [&] {
        const bool list = dialog->findChild<QComboBox*>(QStringLiteral("fileTypeCombo"))->isVisible();
        EXPECT_EQ(dialog->findChild<QLabel*>(QStringLiteral("fileTypeLabel"))->isVisible(), list);
        return list;
    };
    for (const auto mode : {QFileDialog::Directory, QFileDialog::ExistingFile, QFileDialog::Directory,
             QFileDialog::ExistingFiles, QFileDialog::AnyFile}) {
        dialog->setFileMode(mode);
        run(*dialog, [&](FileDialogDriver&) { EXPECT_EQ(isShown(), mode != QFileDialog::Directory) << mode; });
        dialog->show();
        EXPECT_EQ(isShown(), mode != QFileDialog::Directory) << mode;
        dialog->hide();
    }
}

TEST_F(QExtendedFileDialogLooks, listOfTypesThatTheHostHasHiddenStaysHidden)
{
    const Dialog dialog = openDialog("All (*)");
    auto& types = *dialog->findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
    types.hide();
    for (const auto mode : {QFileDialog::ExistingFile, QFileDialog::Directory, QFileDialog::AnyFile}) {
        dialog->setFileMode(mode);
        run(*dialog, [&](FileDialogDriver&) { EXPECT_FALSE(types.isVisible()) << mode; });
    }
}
