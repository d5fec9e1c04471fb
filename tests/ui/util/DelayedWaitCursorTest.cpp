// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/DelayedWaitCursor_p.h"

#include <gtest/gtest.h>

#include <QCursor>
#include <QElapsedTimer>
#include <QGuiApplication>

#include <optional>

namespace {

using morvane::ui::DelayedWaitCursor;

bool shows()
{
    const QCursor* const cursor = QGuiApplication::overrideCursor();
    return cursor && cursor->shape() == Qt::WaitCursor;
}

} // namespace

TEST(DelayedWaitCursorTest, showsFromHalfASecondToItsEnd)
{
    QElapsedTimer timer;
    timer.start();
    std::optional<DelayedWaitCursor> cursor(std::in_place);
    while (!shows() && timer.elapsed() < 5000) {
        cursor->step();
    }
    EXPECT_GE(timer.elapsed(), 500);
    EXPECT_TRUE(shows());
    cursor.reset();
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST(DelayedWaitCursorTest, neverShowsWithoutSteps)
{
    {
        const DelayedWaitCursor cursor;
        EXPECT_FALSE(shows());
    }
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}
