// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/CursorStack_p.h"

#include "support/OverrideCursors.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCursor>
#include <QPixmap>

using morvane::test::overrideCursors;
using morvane::ui::takeOffOverrideCursor;

namespace {

using Cursors = std::vector<Qt::CursorShape>;

struct Removal
{
    Cursors before;
    Cursors after; ///< without one wait cursor
};

void clear()
{
    while (QGuiApplication::overrideCursor()) {
        QGuiApplication::restoreOverrideCursor();
    }
}

TEST(CursorStack, givesUpTheUppermostOfTheShapeAndKeepsWhatLiesAbove)
{
    const Removal table[] = {
        {{}, {}},
        {{Qt::WaitCursor}, {}},
        {{Qt::BusyCursor, Qt::WaitCursor}, {Qt::BusyCursor}},
        {{Qt::WaitCursor, Qt::BusyCursor, Qt::ArrowCursor}, {Qt::BusyCursor, Qt::ArrowCursor}},
        {{Qt::WaitCursor, Qt::BusyCursor, Qt::WaitCursor, Qt::ArrowCursor},
            {Qt::WaitCursor, Qt::BusyCursor, Qt::ArrowCursor}},
        // Other code has removed the wait cursor in place of its own cursor.
        {{Qt::BusyCursor}, {}},
        {{Qt::ArrowCursor, Qt::BusyCursor}, {Qt::ArrowCursor}},
    };
    for (const Removal& row : table) {
        for (const Qt::CursorShape shape : row.before) {
            QGuiApplication::setOverrideCursor(QCursor(shape));
        }
        takeOffOverrideCursor(Qt::WaitCursor);
        EXPECT_EQ(overrideCursors(), row.after);
        clear();
    }
}

TEST(CursorStack, keepsCursorsThatArePictures)
{
    QPixmap picture(16, 16);
    picture.fill(Qt::red);
    QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
    QGuiApplication::setOverrideCursor(QCursor(picture, 3, 4));
    takeOffOverrideCursor(Qt::WaitCursor);
    ASSERT_TRUE(QGuiApplication::overrideCursor());
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::BitmapCursor);
    EXPECT_EQ(QGuiApplication::overrideCursor()->hotSpot(), QPoint(3, 4));
    clear();
}

} // namespace
