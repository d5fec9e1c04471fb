// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/OverrideCursor.h"
#include "ui/util/TableCopyFixture.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QTest>
#include <QThread>
#include <QTimer>

namespace {

/** A model whose cells take time to read. It records the cursor that is shown while each cell is read. */
class SlowTable
{
public:
    SlowTable(int cells, std::function<unsigned long(int row)> milliseconds)
        : m_milliseconds(std::move(milliseconds)), m_model(cells, 1, [this](int row, int) { return read(row); })
    {
        view.setModel(&m_model);
        view.selectAll();
    }

    void copy()
    {
        morvane::ui::TableCopyHandler handler(view);
        m_timer.start();
        handler.copyToClipboard();
        duration = m_timer.elapsed();
    }

    QTableView view;
    qint64 duration = 0;
    qint64 firstWaitCursor = -1; // ms after the start
    int lateCells = 0;           // read after half a second, but without the wait cursor

private:
    QVariant read(int row)
    {
        const bool lateAtStart = m_timer.elapsed() > 500;
        if (const unsigned long time = m_milliseconds(row)) {
            QThread::msleep(time);
        }
        const QCursor* const cursor = QGuiApplication::overrideCursor();
        if (cursor && cursor->shape() == Qt::WaitCursor) {
            firstWaitCursor = firstWaitCursor < 0 ? m_timer.elapsed() : firstWaitCursor;
        } else if (lateAtStart) {
            ++lateCells;
        }
        return row;
    }

    std::function<unsigned long(int row)> m_milliseconds;
    morvane::test::CellModel m_model;
    QElapsedTimer m_timer;
};

TEST(TableCopyWaitTest, aLongCopyShowsTheWaitCursorAfterHalfASecond)
{
    SlowTable table(800, [](int) { return 1; });
    table.copy();
    EXPECT_GE(table.firstWaitCursor, 500);
    EXPECT_LE(table.lateCells, 16);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST(TableCopyWaitTest, aCopyOfAFewVerySlowCellsShowsItToo)
{
    SlowTable table(13, [](int) { return 60; });
    table.copy();
    EXPECT_GE(table.firstWaitCursor, 500);
    EXPECT_LE(table.lateCells, 2);
}

TEST(TableCopyWaitTest, cellsThatTurnSlowHalfwayDoNotDelayItForLong)
{
    SlowTable table(20600, [](int row) { return row < 20000 ? 0UL : 3UL; });
    table.copy();
    EXPECT_GE(table.firstWaitCursor, 500);
    EXPECT_LE(table.lateCells, 256);
}

TEST(TableCopyWaitTest, aShortCopyShowsNone)
{
    SlowTable table(20, [](int) { return 5; });
    table.copy();
    EXPECT_EQ(table.firstWaitCursor, -1);
}

TEST(TableCopyWaitTest, anotherCursorOfTheApplicationComesBackAfterwards)
{
    const morvane::ui::OverrideCursor cross(Qt::CrossCursor);
    SlowTable table(800, [](int) { return 1; });
    table.copy();
    EXPECT_GE(table.firstWaitCursor, 500);
    ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::CrossCursor);
}

TEST(TableCopyWaitTest, theWaitIsOverWhenTheClipboardChanges)
{
    SlowTable table(800, [](int) { return 1; });
    QObject listener;
    int changesWithoutCursor = 0;
    int changesWithCursor = 0;
    QObject::connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, &listener,
        [&] { ++(QGuiApplication::overrideCursor() ? changesWithCursor : changesWithoutCursor); });
    table.copy();
    // If the system owns the clipboard, its listeners are told a moment later, also about earlier copies.
    EXPECT_TRUE(QTest::qWaitFor([&] { return changesWithoutCursor > 0; }));
    EXPECT_EQ(changesWithCursor, 0);
}

TEST(TableCopyWaitTest, noEventsAreProcessedMeanwhile)
{
    SlowTable table(800, [](int) { return 1; });
    bool fired = false;
    QTimer::singleShot(0, [&fired] { fired = true; });
    table.copy();
    EXPECT_FALSE(fired);
    QCoreApplication::processEvents();
    EXPECT_TRUE(fired);
}

TEST(TableCopyWaitTest, aCellThatThrowsLeavesNoCursorBehind)
{
    QTableView view;
    morvane::test::CellModel model(800, 1, [](int row, int) {
        QThread::msleep(1);
        return row < 799 ? QVariant(row) : throw std::runtime_error("unreadable");
    });
    view.setModel(&model);
    view.selectAll();
    morvane::ui::TableCopyHandler handler(view);
    QGuiApplication::clipboard()->setText("before");
    EXPECT_THROW(handler.copyToClipboard(), std::runtime_error);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(morvane::test::clipboardText(), "before");
}

} // namespace
