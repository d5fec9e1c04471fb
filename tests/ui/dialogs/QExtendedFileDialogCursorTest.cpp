#include "FileDialogTest.h"

#include <QApplication>
#include <QFileSystemModel>

using namespace morvane::test;

namespace {

using Cursors = std::vector<Qt::CursorShape>;

class QExtendedFileDialogCursor : public FileDialogTest
{
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

    run(*dialog, [](FileDialogPage&) { EXPECT_TRUE(waitUntil([] { return overrideCursors().size() == 1; })); });

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

    run(*dialog, [](FileDialogPage&) {
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

    run(*dialog, [&](FileDialogPage& page) {
        EXPECT_TRUE(page.waitForListed({QStringLiteral("inner")}));
        const auto onlyArrow = [] { return overrideCursors() == Cursors({Qt::ArrowCursor}); };
        for (int round = 0; round < 3; ++round) {
            EXPECT_TRUE(waitUntil(onlyArrow));
            page.dialog().setDirectory(path(QStringLiteral("inner")));
            EXPECT_EQ(overrideCursors(), Cursors({Qt::ArrowCursor, Qt::WaitCursor}));
            EXPECT_TRUE(page.waitForListed({QStringLiteral("a.dat")}));
            EXPECT_TRUE(waitUntil(onlyArrow));
            page.dialog().setDirectory(folder());
            EXPECT_EQ(overrideCursors(), Cursors({Qt::ArrowCursor, Qt::WaitCursor}));
            EXPECT_TRUE(page.waitForListed({QStringLiteral("inner")}));
        }
        EXPECT_TRUE(waitUntil(onlyArrow));
    });
}
