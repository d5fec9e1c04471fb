// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "FileDialogTest.h"

#include <QFile>
#include <QPointer>

using namespace morvane::test;

namespace {

using Cursors = std::vector<Qt::CursorShape>;

class QExtendedFileDialogLifetime : public FileDialogTest
{
protected:
#ifdef Q_OS_WIN
    static constexpr int manyFiles = 1000; // Qt asks the system ten times for each
#else
    static constexpr int manyFiles = 10000;
#endif

    static QString numbered(int number)
    {
        return QStringLiteral("many/run%1.%2").arg(number, 5, 10, QLatin1Char('0')).arg(number == 777 ? "dat" : "txt");
    }

    void makeManyFiles() const
    {
        makeFolder(QStringLiteral("many"));
        for (int number = 0; number < manyFiles; ++number) {
            makeFile(numbered(number));
        }
    }
};

} // namespace

TEST_F(QExtendedFileDialogLifetime, parentDestroyedWhileItRuns)
{
    const QPointer<QExtendedFileDialog> dialog = openDialog().release();

    const int result = run(*dialog, [&](FileDialogDriver&) { m_parent.reset(); });

    EXPECT_EQ(result, QDialog::Rejected);
    EXPECT_FALSE(dialog);
    EXPECT_TRUE(m_settings.written().empty());
    EXPECT_EQ(overrideCursors(), Cursors());
}

TEST_F(QExtendedFileDialogLifetime, parentDestroyedInTheMiddleOfALoad)
{
    makeFolder(QStringLiteral("inner"));
    const QPointer<QExtendedFileDialog> dialog = openDialog().release();

    const int result = run(*dialog, [&](FileDialogDriver& driver) {
        driver.dialog().setDirectory(path(QStringLiteral("inner")));
        EXPECT_EQ(overrideCursors().back(), Qt::WaitCursor);
        m_parent.reset();
        EXPECT_EQ(overrideCursors(), Cursors({Qt::ArrowCursor}));
    });

    EXPECT_EQ(result, QDialog::Rejected);
    EXPECT_TRUE(m_settings.written().empty());
    EXPECT_EQ(overrideCursors(), Cursors());
}

TEST_F(QExtendedFileDialogLifetime, dialogDestroyedWhileItRuns)
{
    QExtendedFileDialog* const dialog = openDialog().release();

    EXPECT_EQ(run(*dialog, [&](FileDialogDriver&) { delete dialog; }), QDialog::Rejected);

    EXPECT_TRUE(m_settings.written().empty());
    EXPECT_EQ(overrideCursors(), Cursors());
}

TEST_F(QExtendedFileDialogLifetime, dialogThatDeletesItselfOnCloseStillTellsItsResult)
{
    makeFile(QStringLiteral("a.dat"));
    const QPointer<QExtendedFileDialog> dialog = openDialog().release();
    dialog->setAttribute(Qt::WA_DeleteOnClose);

    EXPECT_EQ(
        run(*dialog, [](FileDialogDriver& driver) { driver.enterName(QStringLiteral("a.dat")); }), QDialog::Accepted);

    EXPECT_FALSE(dialog);
    EXPECT_EQ(overrideCursors(), Cursors());
}

TEST_F(QExtendedFileDialogLifetime, shownDialogIsDestroyedWithItsParent)
{
    const QPointer<QExtendedFileDialog> dialog = openDialog().release();
    dialog->show();

    m_parent.reset();

    EXPECT_FALSE(dialog);
}

TEST_F(QExtendedFileDialogLifetime, destroyedWhileAFolderOfManyFilesIsRead)
{
    makeManyFiles();
    Dialog dialog = openDialog();
    dialog->show();
    dialog->setDirectory(path(QStringLiteral("many")));
    EXPECT_EQ(overrideCursors(), Cursors({Qt::WaitCursor}));

    dialog.reset();

    EXPECT_EQ(overrideCursors(), Cursors());
}

TEST_F(QExtendedFileDialogLifetime, manyFilesAreListedFilteredAndPicked)
{
    makeManyFiles();
    const Dialog dialog = openDialog("Text (*.txt);;All (*)");

    const int result = run(*dialog, [&](FileDialogDriver& driver) {
        driver.dialog().setDirectory(path(QStringLiteral("many")));
        EXPECT_EQ(overrideCursors().back(), Qt::WaitCursor);
        EXPECT_TRUE(waitUntil([&] { return driver.listed().size() == manyFiles - 1; }));
        EXPECT_TRUE(waitUntil([&] { return overrideCursors() == Cursors({Qt::ArrowCursor}); }));
        driver.enterName(QStringLiteral("*.dat"));
        EXPECT_TRUE(driver.waitForListed({QStringLiteral("run00777.dat")}));
        driver.pickTypeWithKeys(1);
        EXPECT_TRUE(waitUntil([&] { return driver.listed().size() == manyFiles; }));
        driver.clickFile(QStringLiteral("run00777.dat"));
        driver.click(QDialogButtonBox::Open);
    });

    EXPECT_EQ(result, QDialog::Accepted);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(path(QStringLiteral("many/run00777.dat"))));
}

TEST_F(QExtendedFileDialogLifetime, runsAgainAndAgain)
{
    const Dialog dialog = openDialog("Text (*.txt);;All (*)");
    for (int round = 0; round < 20; ++round) {
        EXPECT_EQ(run(*dialog, [](FileDialogDriver& driver) { driver.enterName(QStringLiteral("*.dat")); }), 0);
    }

    EXPECT_EQ(m_settings.written().size(), 20U);
    EXPECT_EQ(overrideCursors(), Cursors());
}
