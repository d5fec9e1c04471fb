// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/OverrideCursor.h"
#include "ui/qt/util/OverrideCursorRestorer.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QPixmap>

#include <optional>
#include <type_traits>

namespace {

using morvane::ui::OverrideCursor;
using morvane::ui::OverrideCursorRestorer;

static_assert(!std::is_copy_constructible_v<OverrideCursor> && !std::is_copy_assignable_v<OverrideCursor>);
static_assert(!std::is_copy_constructible_v<OverrideCursorRestorer>);
static_assert(!std::is_copy_assignable_v<OverrideCursorRestorer>);
static_assert(!std::is_convertible_v<Qt::CursorShape, OverrideCursor>);

/** The shape of the active override cursor, -1 without one. */
int activeShape()
{
    const QCursor* const cursor = QGuiApplication::overrideCursor();
    return cursor ? cursor->shape() : -1;
}

TEST(CursorGuardOverrideTest, showsItsShapeUntilItEnds)
{
    {
        const OverrideCursor wait(Qt::WaitCursor);
        EXPECT_EQ(activeShape(), Qt::WaitCursor);
    }
    EXPECT_EQ(activeShape(), -1);
}

TEST(CursorGuardOverrideTest, nestedGuardsRestoreInTwoSteps)
{
    std::optional<OverrideCursor> outer(Qt::WaitCursor);
    std::optional<OverrideCursor> inner(Qt::CrossCursor);
    EXPECT_EQ(activeShape(), Qt::CrossCursor);
    inner.reset();
    EXPECT_EQ(activeShape(), Qt::WaitCursor);
    outer.reset();
    EXPECT_EQ(activeShape(), -1);
}

TEST(CursorGuardOverrideTest, endsWithAnException)
{
    EXPECT_THROW(
        {
            const OverrideCursor wait(Qt::WaitCursor);
            throw 1;
        },
        int);
    EXPECT_EQ(activeShape(), -1);
}

TEST(CursorGuardRestorerTest, showsTheNormalCursorUntilItEnds)
{
    const OverrideCursor wait(Qt::WaitCursor);
    {
        const OverrideCursorRestorer pointer;
        EXPECT_EQ(activeShape(), -1);
    }
    EXPECT_EQ(activeShape(), Qt::WaitCursor);
}

TEST(CursorGuardRestorerTest, takesOffOneCursorOnly)
{
    const OverrideCursor wait(Qt::WaitCursor);
    {
        const OverrideCursor cross(Qt::CrossCursor);
        {
            const OverrideCursorRestorer pointer;
            EXPECT_EQ(activeShape(), Qt::WaitCursor);
        }
        EXPECT_EQ(activeShape(), Qt::CrossCursor);
    }
    EXPECT_EQ(activeShape(), Qt::WaitCursor);
}

TEST(CursorGuardRestorerTest, nestedRestorersGoDownStepByStep)
{
    const OverrideCursor wait(Qt::WaitCursor);
    const OverrideCursor cross(Qt::CrossCursor);
    {
        const OverrideCursorRestorer once;
        const OverrideCursorRestorer twice;
        EXPECT_EQ(activeShape(), -1);
    }
    EXPECT_EQ(activeShape(), Qt::CrossCursor);
}

TEST(CursorGuardRestorerTest, bringsBackAPictureCursor)
{
    QPixmap picture(16, 16);
    picture.fill(Qt::red);
    const QCursor original(picture, 3, 5);
    QGuiApplication::setOverrideCursor(original);
    {
        const OverrideCursorRestorer pointer;
    }
    ASSERT_EQ(activeShape(), Qt::BitmapCursor);
    EXPECT_EQ(QGuiApplication::overrideCursor()->hotSpot(), QPoint(3, 5));
    QGuiApplication::restoreOverrideCursor();
}

TEST(CursorGuardRestorerTest, withoutAnActiveCursorDoesNothing)
{
    {
        const OverrideCursorRestorer pointer;
        EXPECT_EQ(activeShape(), -1);
    }
    EXPECT_EQ(activeShape(), -1);
}

TEST(CursorGuardRestorerTest, withoutAnActiveCursorLeavesOneThatCameLaterAlone)
{
    {
        const OverrideCursorRestorer pointer;
        QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    }
    EXPECT_EQ(activeShape(), Qt::BusyCursor);
    QGuiApplication::restoreOverrideCursor();
    EXPECT_EQ(activeShape(), -1);
}

} // namespace
