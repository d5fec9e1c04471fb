#include "ui/qt/util/DelayedWaitCursor.h"

#include <gtest/gtest.h>

#include <QCursor>
#include <QElapsedTimer>
#include <QGuiApplication>

#include <algorithm>
#include <limits>
#include <optional>

namespace {

using morvane::ui::DelayedWaitCursor;

/** The time that 1000 actions take when nothing gets in between. */
template <typename Action>
qint64 shortestTime(Action action)
{
    qint64 shortest = std::numeric_limits<qint64>::max();
    for (int round = 0; round < 50; ++round) {
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < 1000; ++i) {
            action();
        }
        shortest = std::min(shortest, timer.nsecsElapsed());
    }
    return shortest;
}

bool shows()
{
    const QCursor* const cursor = QGuiApplication::overrideCursor();
    return cursor && cursor->shape() == Qt::WaitCursor;
}

void workFor(DelayedWaitCursor& cursor, qint64 milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds) {
        cursor.step();
    }
}

} // namespace

TEST(DelayedWaitCursorTest, aStepCostsFarLessThanReadingTheClock)
{
    QElapsedTimer clock;
    clock.start();
    const qint64 reading = shortestTime([&clock] { return clock.elapsed(); });

    DelayedWaitCursor cursor;
    workFor(cursor, 30);
    const qint64 quickSteps = shortestTime([&cursor] { cursor.step(); });
    EXPECT_LT(2 * quickSteps, reading);

    workFor(cursor, 600);
    ASSERT_TRUE(shows());
    EXPECT_LT(2 * shortestTime([&cursor] { cursor.step(); }), reading) << "while it shows";
}

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
