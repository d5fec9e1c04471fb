// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "SpinBoxFixture.h"

#include <QKeyEvent>

#include <limits>
#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>

namespace {

using morvane::test::Integer64SpinBox;
using morvane::test::IntegerSpinBox;
using morvane::test::ScientificSpinBox;
using morvane::test::SpinBoxWindow;

/** What both spin boxes have in common. */
template <typename SpinBox>
class SpinBoxSteps : public ::testing::Test
{
protected:
    SpinBoxSteps()
    {
        spin.setRange(0, 99);
        spin.setSingleStep(5);
        spin.setValue(10);
    }

    void countSteps()
    {
        spin.signalIncrement.connect([this] { ++ups; });
        spin.signalDecrement.connect([this] { ++downs; });
    }

    void holdKey(Qt::Key key)
    {
        for (const bool repeated : {false, true}) {
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(), repeated);
            QApplication::sendEvent(&spin, &press);
        }
    }

    void releaseKey(Qt::Key key)
    {
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
        QApplication::sendEvent(&spin, &release);
    }

    SpinBoxWindow<SpinBox> window;
    SpinBox& spin = window.spin;
    int ups = 0;
    int downs = 0;
};

using SpinBoxes = ::testing::Types<ScientificSpinBox, IntegerSpinBox, Integer64SpinBox>;

} // namespace

TYPED_TEST_SUITE(SpinBoxSteps, SpinBoxes, );

TYPED_TEST(SpinBoxSteps, keyboardTrackingIsOff)
{
    EXPECT_FALSE(this->spin.keyboardTracking());
}

TYPED_TEST(SpinBoxSteps, arrowKeysChangeTheValueByTheSingleStep)
{
    QTest::keyClick(&this->spin, Qt::Key_Up);
    EXPECT_EQ(this->spin.value(), 15);
    QTest::keyClick(&this->spin, Qt::Key_Down);
    QTest::keyClick(&this->spin, Qt::Key_Down);
    EXPECT_EQ(this->spin.value(), 5);
    EXPECT_EQ(this->window.shown(), "5");
}

TYPED_TEST(SpinBoxSteps, pageKeysChangeTheValueByTenSteps)
{
    QTest::keyClick(&this->spin, Qt::Key_PageUp);
    EXPECT_EQ(this->spin.value(), 60);
    QTest::keyClick(&this->spin, Qt::Key_PageUp);
    EXPECT_EQ(this->spin.value(), 99) << "the end of the range";
    QTest::keyClick(&this->spin, Qt::Key_PageDown);
    EXPECT_EQ(this->spin.value(), 49);
}

TYPED_TEST(SpinBoxSteps, wheelChangesTheValue)
{
    this->window.turnWheel(120);
    EXPECT_EQ(this->spin.value(), 15);
    this->window.turnWheel(-240);
    EXPECT_EQ(this->spin.value(), 5);
}

TYPED_TEST(SpinBoxSteps, buttonsChangeTheValue)
{
    this->window.clickButton(QStyle::SC_SpinBoxUp);
    EXPECT_EQ(this->spin.value(), 15);
    this->window.clickButton(QStyle::SC_SpinBoxDown);
    EXPECT_EQ(this->spin.value(), 10);
}

TYPED_TEST(SpinBoxSteps, heldKeyStepsUntilItIsReleased)
{
    this->spin.setSingleStep(1);
    this->holdKey(Qt::Key_Up);
    EXPECT_TRUE(QTest::qWaitFor([this] { return this->spin.value() >= 14; }));
    this->releaseKey(Qt::Key_Up);
    const auto reached = this->spin.value();
    QTest::keyClick(&this->spin, Qt::Key_Down);
    EXPECT_EQ(this->spin.value(), reached - 1);
}

TYPED_TEST(SpinBoxSteps, heldKeyFiresUntilItIsReleased)
{
    this->countSteps();
    this->holdKey(Qt::Key_Down);
    EXPECT_TRUE(QTest::qWaitFor([this] { return this->downs >= 4; }));
    this->releaseKey(Qt::Key_Down);
    EXPECT_EQ(this->spin.value(), 10);
    EXPECT_EQ(this->ups, 0);
}

TYPED_TEST(SpinBoxSteps, stepsEndAtTheRange)
{
    this->spin.stepBy(100);
    EXPECT_EQ(this->spin.value(), 99);
    this->spin.stepBy(-100);
    EXPECT_EQ(this->spin.value(), 0);
    this->spin.setValue(0);
    this->spin.setSingleStep(2);
    this->spin.stepBy(-3);
    EXPECT_EQ(this->spin.value(), 0);
}

TYPED_TEST(SpinBoxSteps, stepByNothingSetsTheSameValue)
{
    this->spin.stepBy(0);
    EXPECT_EQ(this->spin.value(), 10);
}

TYPED_TEST(SpinBoxSteps, theHostTakesOverEveryKindOfStep)
{
    this->countSteps();
    QTest::keyClick(&this->spin, Qt::Key_Up);
    QTest::keyClick(&this->spin, Qt::Key_PageUp);
    this->window.turnWheel(240);
    this->window.clickButton(QStyle::SC_SpinBoxUp);
    this->spin.stepUp();
    this->spin.stepBy(1000);
    EXPECT_EQ(this->ups, 6);
    EXPECT_EQ(this->downs, 0);
    QTest::keyClick(&this->spin, Qt::Key_Down);
    QTest::keyClick(&this->spin, Qt::Key_PageDown);
    this->window.turnWheel(-120);
    this->window.clickButton(QStyle::SC_SpinBoxDown);
    this->spin.stepDown();
    this->spin.stepBy(std::numeric_limits<int>::min());
    EXPECT_EQ(this->ups, 6);
    EXPECT_EQ(this->downs, 6);
    EXPECT_EQ(this->spin.value(), 10);
}

TYPED_TEST(SpinBoxSteps, theHostMayTakeOverOneDirectionOnly)
{
    this->spin.signalIncrement.connect([this] { ++this->ups; });
    this->spin.stepBy(-1);
    EXPECT_EQ(this->spin.value(), 5);
    this->spin.stepBy(1);
    EXPECT_EQ(this->spin.value(), 5);
    EXPECT_EQ(this->ups, 1);
}

TYPED_TEST(SpinBoxSteps, stepByNothingIsAStepDown)
{
    this->countSteps();
    this->spin.stepBy(0);
    EXPECT_EQ(this->downs, 1);
    EXPECT_EQ(this->ups, 0);
}

TYPED_TEST(SpinBoxSteps, partsOfANotchAddUpToOneStep)
{
    this->countSteps();
    for (int part = 0; part < 8; ++part) {
        EXPECT_EQ(this->ups, 0) << "after part " << part;
        this->window.turnWheel(15);
    }
    EXPECT_EQ(this->ups, 1);
    EXPECT_EQ(this->downs, 0);
    this->window.turnWheel(119);
    EXPECT_EQ(this->ups, 1);
    this->window.turnWheel(121);
    EXPECT_EQ(this->ups, 2) << "two notches in one turn are one step of the host";
}

TYPED_TEST(SpinBoxSteps, partOfANotchLeavesTypedTextAlone)
{
    this->window.type("50");
    this->window.turnWheel(60);
    EXPECT_EQ(this->window.shown(), "50");
    this->window.commit();
    EXPECT_EQ(this->spin.value(), 50);
}

TYPED_TEST(SpinBoxSteps, aTurnBackGivesThePartOfANotchUp)
{
    this->window.turnWheel(60);
    this->window.turnWheel(-60);
    EXPECT_EQ(this->spin.value(), 10);
    this->window.turnWheel(-60);
    EXPECT_EQ(this->spin.value(), 5);
    this->window.turnWheel(90);
    this->window.turnWheel(90);
    EXPECT_EQ(this->spin.value(), 10);
    this->window.turnWheel(-120);
    EXPECT_EQ(this->spin.value(), 5) << "a whole notch, from wherever it begins";
}

TYPED_TEST(SpinBoxSteps, thePartOfANotchIsForgottenWhenThePointerOrTheFocusLeaves)
{
    this->window.turnWheel(60);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&this->spin, &leave);
    this->window.turnWheel(60);
    EXPECT_EQ(this->spin.value(), 10);
    this->window.other.setFocus();
    this->window.turnWheel(60);
    EXPECT_EQ(this->spin.value(), 10);
    this->window.turnWheel(60);
    EXPECT_EQ(this->spin.value(), 15);
}

TYPED_TEST(SpinBoxSteps, withControlANotchIsTenSteps)
{
    this->spin.setSingleStep(1);
    QWheelEvent turn(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::ControlModifier,
        Qt::NoScrollPhase, false);
    QApplication::sendEvent(&this->spin, &turn);
    EXPECT_EQ(this->spin.value(), 20);
}

TYPED_TEST(SpinBoxSteps, turnsThatLeadNowhereStepNothing)
{
    this->countSteps();
    this->window.turnWheel(QPoint());
    this->window.turnWheel(QPoint(), QPoint(0, 40));
    this->window.turnWheel(QPoint(120, 0));
    this->window.turnWheel(QPoint(-240, 120));
    EXPECT_EQ(this->ups + this->downs, 0);
    this->window.turnWheel(QPoint(-120, 120));
    EXPECT_EQ(this->ups, 1) << "no more sideways than up";
}

TYPED_TEST(SpinBoxSteps, theDirectionIsTheOneThatTheSystemReports)
{
    QSpinBox other;
    other.setValue(10);
    QWheelEvent natural(
        QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, true);
    QApplication::sendEvent(&other, &natural);
    ASSERT_EQ(other.value(), 11);
    this->window.turnWheel(QPoint(0, 120), QPoint(), true);
    EXPECT_EQ(this->spin.value(), 15) << "as in the spin box of Qt beside it";
}

TYPED_TEST(SpinBoxSteps, everyTurnIsTakenAndNoneScrollsTheFormAround)
{
    for (const QPoint angle : {QPoint(0, 15), QPoint(0, 120), QPoint(120, 0), QPoint()}) {
        QWheelEvent turn(
            QPointF(5, 5), QPointF(5, 5), QPoint(), angle, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        turn.ignore();
        QApplication::sendEvent(&this->spin, &turn);
        EXPECT_TRUE(turn.isAccepted());
    }
}

TYPED_TEST(SpinBoxSteps, everyStepSelectsTheNumber)
{
    this->spin.setPrefix("n = ");
    this->spin.setSuffix(" m");
    const auto selects = [this](const char* number) {
        EXPECT_EQ(this->spin.lineEdit()->selectedText(), number);
        this->spin.lineEdit()->deselect();
    };
    this->spin.stepBy(0);
    selects("10");
    this->spin.stepUp();
    selects("15");
    this->spin.stepBy(100);
    selects("99");
    this->spin.signalDecrement.connect([this] { this->spin.setValue(7); });
    this->spin.stepBy(-1);
    selects("7");
    this->spin.stepBy(0);
    selects("7");
}

TYPED_TEST(SpinBoxSteps, aStepToTheSpecialValueTextSelectsItWhole)
{
    this->spin.setSpecialValueText("none");
    this->spin.stepBy(-2);
    EXPECT_EQ(this->window.shown(), "none");
    EXPECT_EQ(this->spin.lineEdit()->selectedText(), "none");
}

TYPED_TEST(SpinBoxSteps, noStepIsTakenOverAtTheEndOfTheRange)
{
    this->countSteps();
    this->spin.setValue(99);
    QTest::keyClick(&this->spin, Qt::Key_Up);
    this->window.turnWheel(120);
    this->window.clickButton(QStyle::SC_SpinBoxUp);
    EXPECT_EQ(this->ups, 0);
}

TYPED_TEST(SpinBoxSteps, readOnlySpinBoxFiresNothing)
{
    this->countSteps();
    this->spin.setReadOnly(true);
    QTest::keyClick(&this->spin, Qt::Key_Up);
    this->window.turnWheel(-120);
    EXPECT_EQ(this->ups + this->downs, 0);
}

TYPED_TEST(SpinBoxSteps, slotMayChangeValueAndRange)
{
    this->spin.signalIncrement.connect([this] {
        this->spin.setRange(0, 1000);
        this->spin.setValue(this->spin.value() * 10);
    });
    QTest::keyClick(&this->spin, Qt::Key_Up);
    EXPECT_EQ(this->spin.value(), 100);
    this->window.clickButton(QStyle::SC_SpinBoxUp);
    EXPECT_EQ(this->spin.value(), 1000);
}

TYPED_TEST(SpinBoxSteps, slotThatDisconnectsItselfGivesTheStepBack)
{
    boost::signals2::connection connection;
    connection = this->spin.signalIncrement.connect([&] {
        ++this->ups;
        connection.disconnect();
    });
    QTest::keyClick(&this->spin, Qt::Key_Up);
    EXPECT_EQ(this->spin.value(), 10);
    QTest::keyClick(&this->spin, Qt::Key_Up);
    EXPECT_EQ(this->spin.value(), 15);
    EXPECT_EQ(this->ups, 1);
}

TYPED_TEST(SpinBoxSteps, slotOfADeadObjectTakesNothingOver)
{
    auto host = std::make_shared<int>(0);
    boost::signals2::signal<void()>::slot_type slot([this] { ++this->ups; });
    this->spin.signalIncrement.connect(slot.track_foreign(host));
    this->spin.stepBy(1);
    EXPECT_EQ(this->ups, 1);
    host.reset();
    this->spin.stepBy(1);
    EXPECT_EQ(this->ups, 1);
    EXPECT_EQ(this->spin.value(), 15);
}

TYPED_TEST(SpinBoxSteps, exceptionOfASlotReachesTheCaller)
{
    const boost::signals2::connection connection =
        this->spin.signalIncrement.connect([] { throw std::runtime_error("no more"); });
    EXPECT_THROW(this->spin.stepBy(1), std::runtime_error);
    // Not through QApplication: Qt's event delivery is not exception-safe and leaks.
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier);
    EXPECT_THROW(this->spin.keyPressEvent(&press), std::runtime_error);
    EXPECT_EQ(this->spin.value(), 10);
    EXPECT_EQ(this->window.shown(), "10");
    EXPECT_FALSE(this->spin.lineEdit()->hasSelectedText());
    connection.disconnect();
    this->spin.stepBy(1);
    EXPECT_EQ(this->spin.value(), 15);
}

TYPED_TEST(SpinBoxSteps, destructionDisconnectsEverySlot)
{
    boost::signals2::connection up;
    boost::signals2::connection down;
    {
        TypeParam shortLived(nullptr);
        up = shortLived.signalIncrement.connect([] {});
        down = shortLived.signalDecrement.connect([] {});
        EXPECT_TRUE(up.connected());
    }
    EXPECT_FALSE(up.connected());
    EXPECT_FALSE(down.connected());
}

TYPED_TEST(SpinBoxSteps, slotsOfStepsDownAreDestroyedBeforeThoseUp)
{
    std::string order;
    const auto noteEnd = [&order](const char* what) {
        return std::shared_ptr<void>(nullptr, [&order, what](void*) { order += what; });
    };
    {
        TypeParam shortLived(nullptr);
        shortLived.signalIncrement.connect([end = noteEnd("up ")] {});
        shortLived.signalDecrement.connect([end = noteEnd("down ")] {});
    }
    EXPECT_EQ(order, "down up ");
}

TYPED_TEST(SpinBoxSteps, uncommittedTextIsGivenUpByAStepExceptWith64Bits)
{
    const bool isAccepted = std::is_same_v<TypeParam, Integer64SpinBox>;
    this->window.type("50");
    QTest::keyClick(&this->spin, Qt::Key_Up);
    EXPECT_EQ(this->spin.value(), isAccepted ? 55 : 15);
    EXPECT_EQ(this->window.shown(), isAccepted ? "55" : "15");
}

TYPED_TEST(SpinBoxSteps, stepTypeAndAccelerationMakeNoDifference)
{
    if constexpr (!std::is_same_v<TypeParam, Integer64SpinBox>) {
        this->spin.setStepType(QAbstractSpinBox::AdaptiveDecimalStepType);
    }
    this->spin.setAccelerated(true);
    QTest::keyClick(&this->spin, Qt::Key_Up);
    EXPECT_EQ(this->spin.value(), 15);
}
