// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "FileDialogTest.h"

#include <QApplication>
#include <QEvent>
#include <QFileSystemModel>
#include <QSignalSpy>

using namespace morvane::test;

namespace {

using Cursors = std::vector<Qt::CursorShape>;

class QExtendedFileDialogCursor : public FileDialogTest
{
};

/** The cursors at the moment when the dialog was last shown. */
class AtShow : public QObject
{
public:
    explicit AtShow(QWidget& window) { window.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Show) {
            cursors = overrideCursors();
        }
        return false;
    }
    Cursors cursors;
};

} // namespace

TEST_F(QExtendedFileDialogCursor, arrowStandsFromTheStartOfExecToItsEnd)
{
    const Dialog dialog = openDialog();
    std::vector<Cursors> atRead;
    std::vector<Cursors> atWrite;
    m_settings.onCall = [&](RecordingSettings::Kind kind) {
        (kind == RecordingSettings::Kind::read ? atRead : atWrite).push_back(overrideCursors());
    };

    run(*dialog, [](FileDialogDriver&) { EXPECT_TRUE(waitUntil([] { return overrideCursors().size() == 1; })); });

    for (const Cursors& cursors : atRead) {
        EXPECT_EQ(cursors, Cursors());
    }
    EXPECT_EQ(atWrite, std::vector<Cursors>({{Qt::ArrowCursor}}));
    EXPECT_EQ(overrideCursors(), Cursors());
}

TEST_F(QExtendedFileDialogCursor, arrowCoversTheCallersCursorAndGivesItBack)
{
    QApplication::setOverrideCursor(Qt::BusyCursor);
    const Dialog dialog = openDialog();

    run(*dialog, [](FileDialogDriver&) {
        const Cursors expected = {Qt::BusyCursor, Qt::ArrowCursor};
        EXPECT_TRUE(waitUntil([&] { return overrideCursors() == expected; }));
    });

    EXPECT_EQ(overrideCursors(), Cursors({Qt::BusyCursor}));
    QApplication::restoreOverrideCursor();
}

TEST_F(QExtendedFileDialogCursor, secondChangeOfFolderPushesNothingMore)
{
    const Dialog dialog = openDialog();
    QFileSystemModel& model = fileSystemModel(*dialog);

    Q_EMIT model.rootPathChanged(folder());
    EXPECT_EQ(overrideCursors(), Cursors({Qt::WaitCursor}));
    Q_EMIT model.rootPathChanged(QStringLiteral("/"));
    EXPECT_EQ(overrideCursors(), Cursors({Qt::WaitCursor}));

    Q_EMIT model.directoryLoaded(folder());
    EXPECT_EQ(overrideCursors(), Cursors());
}

TEST_F(QExtendedFileDialogCursor, anyLoadedFolderEndsTheWait)
{
    const Dialog dialog = openDialog();
    QFileSystemModel& model = fileSystemModel(*dialog);
    Q_EMIT model.rootPathChanged(folder());

    Q_EMIT model.directoryLoaded(QStringLiteral("/quite/another"));

    EXPECT_EQ(overrideCursors(), Cursors());
}

TEST_F(QExtendedFileDialogCursor, waitCanStartAgain)
{
    const Dialog dialog = openDialog();
    QFileSystemModel& model = fileSystemModel(*dialog);
    for (int round = 0; round < 2; ++round) {
        Q_EMIT model.rootPathChanged(folder());
        EXPECT_EQ(overrideCursors(), Cursors({Qt::WaitCursor}));
        Q_EMIT model.directoryLoaded(folder());
        EXPECT_EQ(overrideCursors(), Cursors());
    }
}

TEST_F(QExtendedFileDialogCursor, pathThatIsNoFolderStartsNoWait)
{
    makeFile(QStringLiteral("a.dat"));
    const Dialog dialog = openDialog();
    QFileSystemModel& model = fileSystemModel(*dialog);

    for (const QString& other : {QString(), path(QStringLiteral("a.dat")), path(QStringLiteral("missing"))}) {
        Q_EMIT model.rootPathChanged(other);
        EXPECT_EQ(overrideCursors(), Cursors()) << other.toStdString();
    }
}

TEST_F(QExtendedFileDialogCursor, loadedFolderPopsNobodyElsesCursor)
{
    QApplication::setOverrideCursor(Qt::BusyCursor);
    const Dialog dialog = openDialog();

    Q_EMIT fileSystemModel(*dialog).directoryLoaded(folder());

    EXPECT_EQ(overrideCursors(), Cursors({Qt::BusyCursor}));
    QApplication::restoreOverrideCursor();
}

TEST_F(QExtendedFileDialogCursor, destructionEndsTheWait)
{
    Dialog dialog = openDialog();
    Q_EMIT fileSystemModel(*dialog).rootPathChanged(folder());
    ASSERT_EQ(overrideCursors(), Cursors({Qt::WaitCursor}));

    dialog.reset();

    EXPECT_EQ(overrideCursors(), Cursors());
}

TEST_F(QExtendedFileDialogCursor, destructionWithoutAWaitPopsNothing)
{
    QApplication::setOverrideCursor(Qt::BusyCursor);
    Dialog dialog = openDialog();
    Q_EMIT fileSystemModel(*dialog).rootPathChanged(folder());
    Q_EMIT fileSystemModel(*dialog).directoryLoaded(folder());

    dialog.reset();

    EXPECT_EQ(overrideCursors(), Cursors({Qt::BusyCursor}));
    QApplication::restoreOverrideCursor();
}

TEST_F(QExtendedFileDialogCursor, twoDialogsWaitEachForThemselves)
{
    Dialog first = openDialog();
    const Dialog second = openDialog();
    Q_EMIT fileSystemModel(*first).rootPathChanged(folder());
    Q_EMIT fileSystemModel(*second).rootPathChanged(folder());
    EXPECT_EQ(overrideCursors(), Cursors({Qt::WaitCursor, Qt::WaitCursor}));

    first.reset();

    EXPECT_EQ(overrideCursors(), Cursors({Qt::WaitCursor}));
}

TEST_F(QExtendedFileDialogCursor, enteringAndLeavingFoldersWaitsUntilTheyAreRead)
{
    makeFolder(QStringLiteral("inner"));
    makeFile(QStringLiteral("inner/a.dat"));
    const Dialog dialog = openDialog();

    run(*dialog, [&](FileDialogDriver& driver) {
        EXPECT_TRUE(driver.waitForListed({QStringLiteral("inner")}));
        const auto onlyArrow = [] { return overrideCursors() == Cursors({Qt::ArrowCursor}); };
        for (int round = 0; round < 3; ++round) {
            EXPECT_TRUE(waitUntil(onlyArrow));
            driver.dialog().setDirectory(path(QStringLiteral("inner")));
            EXPECT_EQ(overrideCursors(), Cursors({Qt::ArrowCursor, Qt::WaitCursor}));
            EXPECT_TRUE(driver.waitForListed({QStringLiteral("a.dat")}));
            EXPECT_TRUE(waitUntil(onlyArrow));
            driver.dialog().setDirectory(folder());
            EXPECT_EQ(overrideCursors(), Cursors({Qt::ArrowCursor, Qt::WaitCursor}));
            EXPECT_TRUE(driver.waitForListed({QStringLiteral("inner")}));
        }
        EXPECT_TRUE(waitUntil(onlyArrow));
    });
}

TEST_F(QExtendedFileDialogCursor, directorySetBeforeTheRunLeavesAnArrowOnceItIsRead)
{
    makeFolder(QStringLiteral("inner"));
    makeFile(QStringLiteral("inner/a.dat"));
    const Dialog dialog = openDialog();
    dialog->setDirectory(path(QStringLiteral("inner")));
    EXPECT_EQ(overrideCursors(), Cursors({Qt::WaitCursor}));

    run(*dialog, [&](FileDialogDriver& driver) {
        EXPECT_TRUE(driver.waitForListed({QStringLiteral("a.dat")}));
        EXPECT_TRUE(waitUntil([] { return overrideCursors() == Cursors({Qt::ArrowCursor}); }));
    });

    EXPECT_EQ(overrideCursors(), Cursors());
}

TEST_F(QExtendedFileDialogCursor, waitStandsAboveTheArrowFromTheBeginningWhileTheFolderIsRead)
{
    const Dialog dialog = openDialog();
    AtShow atShow(*dialog); // no event has reported yet that the folder is read

    run(*dialog, [](FileDialogDriver&) {
        EXPECT_TRUE(waitUntil([] { return overrideCursors() == Cursors({Qt::ArrowCursor}); }));
    });
    EXPECT_EQ(atShow.cursors, Cursors({Qt::ArrowCursor, Qt::WaitCursor}));

    run(*dialog, [](FileDialogDriver&) {});
    EXPECT_EQ(atShow.cursors, Cursors({Qt::ArrowCursor})) << "read already";
}

TEST_F(QExtendedFileDialogCursor, typedFolderThatIsReadAlreadyStartsNoWait)
{
    makeFolder(QStringLiteral("sub"));
    makeFile(QStringLiteral("sub/a.dat"));
    const Dialog dialog = openDialog();
    QSignalSpy loaded(&fileSystemModel(*dialog), &QFileSystemModel::directoryLoaded);

    run(*dialog, [&](FileDialogDriver& driver) {
        for (int round = 0; round < 2; ++round) {
            EXPECT_TRUE(driver.waitForListed({QStringLiteral("sub")}));
            driver.typeName(QStringLiteral("sub/"));
            EXPECT_TRUE(waitUntil([&] { return loaded.contains({path(QStringLiteral("sub"))}); })) << "for completion";
            driver.pressEnter();
            EXPECT_TRUE(driver.waitForListed({QStringLiteral("a.dat")}));
            EXPECT_TRUE(waitUntil([] { return overrideCursors() == Cursors({Qt::ArrowCursor}); })) << round;
            driver.dialog().setDirectory(folder());
            EXPECT_TRUE(waitUntil([] { return overrideCursors() == Cursors({Qt::ArrowCursor}); })) << round;
        }
    });

    EXPECT_EQ(overrideCursors(), Cursors());
}

TEST_F(QExtendedFileDialogCursor, endOfTheRunEndsTheWaitToo)
{
    QApplication::setOverrideCursor(Qt::BusyCursor);
    const Dialog dialog = openDialog();

    run(*dialog, [&](FileDialogDriver& driver) {
        EXPECT_TRUE(waitUntil([] { return overrideCursors().size() == 2; }));
        Q_EMIT fileSystemModel(*dialog).rootPathChanged(folder());
        EXPECT_EQ(overrideCursors(), Cursors({Qt::BusyCursor, Qt::ArrowCursor, Qt::WaitCursor}));
        driver.dialog().reject();
    });
    EXPECT_EQ(overrideCursors(), Cursors({Qt::BusyCursor}));

    Q_EMIT fileSystemModel(*dialog).directoryLoaded(folder());
    EXPECT_EQ(overrideCursors(), Cursors({Qt::BusyCursor}));
    QApplication::restoreOverrideCursor();
}

TEST_F(QExtendedFileDialogCursor, cursorsOfTheHostStayWhateverIsTakenOffBelowThem)
{
    const Dialog dialog = openDialog();
    makeFolder(QStringLiteral("other"));
    dialog->setDirectory(path(QStringLiteral("other")));
    QApplication::setOverrideCursor(Qt::BusyCursor);
    EXPECT_EQ(overrideCursors(), Cursors({Qt::WaitCursor, Qt::BusyCursor}));

    run(*dialog, [&](FileDialogDriver&) {
        const Cursors afterwards = {Qt::BusyCursor, Qt::ArrowCursor};
        EXPECT_TRUE(waitUntil([&] { return overrideCursors() == afterwards; }));
        QApplication::setOverrideCursor(Qt::ForbiddenCursor);
    });

    EXPECT_EQ(overrideCursors(), Cursors({Qt::BusyCursor, Qt::ForbiddenCursor}));
    QApplication::restoreOverrideCursor();
    QApplication::restoreOverrideCursor();
}

TEST_F(QExtendedFileDialogCursor, runAfterRunLeavesNothing)
{
    makeFolder(QStringLiteral("inner"));
    const Dialog dialog = openDialog();
    for (int round = 0; round < 3; ++round) {
        dialog->setDirectory(round % 2 == 0 ? path(QStringLiteral("inner")) : folder());
        run(*dialog, [](FileDialogDriver&) {}); // ends before or after the folder is read
        EXPECT_EQ(overrideCursors(), Cursors()) << round;
    }
}

TEST_F(QExtendedFileDialogCursor, dialogThatGoesWhileItRunsTakesBothAlong)
{
    QApplication::setOverrideCursor(Qt::BusyCursor);
    auto* const dialog =
        new QExtendedFileDialog(*m_parent, "", folder().toStdString(), "", "", QFileDialog::AcceptOpen);
    QTimer::singleShot(0, m_parent.get(), [&] {
        Q_EMIT fileSystemModel(*dialog).rootPathChanged(folder());
        m_parent.reset();
    });

    EXPECT_EQ(dialog->exec(), QDialog::Rejected);

    EXPECT_EQ(overrideCursors(), Cursors({Qt::BusyCursor}));
    QApplication::restoreOverrideCursor();
}
