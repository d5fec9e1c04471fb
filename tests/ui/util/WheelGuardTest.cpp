// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/WheelGuard.h"

#include "support/ActiveWindow.h"
#include "ui/qt/controls/ComboBoxAutoFilter.h"
#include "ui/qt/controls/QScientificSpinBox.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <qtestspontaneevent.h>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QWindow>

namespace {

using morvane::test::setActiveWindow;
using morvane::ui::guardWheel;

/** A form that is longer than the area around it. */
class WheelGuard : public ::testing::Test
{
protected:
    WheelGuard()
    {
        combo.addItems({"one", "two", "three"});
        combo.setCurrentIndex(1);
        editable.addItems({"one", "two", "three"});
        editable.setEditable(true);
        editable.setCurrentIndex(1);
        spin.setValue(50);
        slider.setValue(50);
        for (QWidget* const field : std::initializer_list<QWidget*>{&other, &spin, &combo, &editable, &slider}) {
            layout.addWidget(field);
        }
        layout.addStretch(1);
        form.setMinimumHeight(2000);
        area.setWidget(&form);
        area.setWidgetResizable(true);
        area.resize(400, 500);
        area.show();
        setActiveWindow(area);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&area));
        other.setFocus();
    }

    ~WheelGuard() override { area.takeWidget(); }

    /** Turns the wheel over a widget, as the window system does: the event goes to the window. */
    void turnOver(QWidget& widget, int angle = -120)
    {
        const QPoint centre = widget.mapTo(&area, widget.rect().center());
        ASSERT_TRUE(area.rect().contains(centre));
        QWheelEvent turn(centre, area.mapToGlobal(centre), QPoint(), QPoint(0, angle), Qt::NoButton, Qt::NoModifier,
            Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&turn); // only such events are passed on to parents
        qApp->notify(area.windowHandle(), &turn);
    }

    int scrolled() const { return area.verticalScrollBar()->value(); }
    void scrollBack() { area.verticalScrollBar()->setValue(0); }

    QScrollArea area;
    QWidget form;
    QVBoxLayout layout{&form};
    QLineEdit other;
    QSpinBox spin;
    QComboBox combo;
    QComboBox editable;
    QSlider slider{Qt::Horizontal};
};

TEST_F(WheelGuard, isNeededBecauseQtChangesWhatOneScrollsPast)
{
    turnOver(spin);
    EXPECT_EQ(spin.value(), 49);
    EXPECT_EQ(scrolled(), 0);
}

TEST_F(WheelGuard, scrollsTheAreaOverFieldsWithoutTheFocus)
{
    guardWheel(form);
    for (QWidget* const field : std::initializer_list<QWidget*>{&spin, &combo, &editable}) {
        turnOver(*field);
        EXPECT_GT(scrolled(), 0) << field->metaObject()->className();
        EXPECT_TRUE(other.hasFocus());
        scrollBack();
    }
    EXPECT_EQ(spin.value(), 50);
    EXPECT_EQ(combo.currentIndex(), 1);
    EXPECT_EQ(editable.currentIndex(), 1);
}

TEST_F(WheelGuard, leavesTheWheelToTheFieldWithTheFocus)
{
    guardWheel(form);
    QTest::mouseClick(&spin, Qt::LeftButton, Qt::NoModifier, QPoint(10, spin.height() / 2));
    turnOver(spin);
    EXPECT_EQ(spin.value(), 49);
    combo.setFocus();
    turnOver(combo);
    EXPECT_EQ(combo.currentIndex(), 2);
    editable.setFocus();
    turnOver(editable);
    EXPECT_EQ(editable.currentIndex(), 2);
    EXPECT_EQ(scrolled(), 0);
    turnOver(spin);
    EXPECT_EQ(spin.value(), 49) << "the focus is elsewhere now";
}

TEST_F(WheelGuard, keepsTheWheelFromGivingTheFocus)
{
    EXPECT_EQ(spin.focusPolicy(), Qt::WheelFocus);
    combo.setFocusPolicy(Qt::TabFocus);
    guardWheel(form);
    EXPECT_EQ(spin.focusPolicy(), Qt::StrongFocus);
    EXPECT_EQ(combo.focusPolicy(), Qt::TabFocus) << "the host's own";
    EXPECT_EQ(slider.focusPolicy(), QSlider().focusPolicy());
}

TEST_F(WheelGuard, leavesSlidersAlone)
{
    guardWheel(form);
    turnOver(slider);
    EXPECT_NE(slider.value(), 50);
}

TEST_F(WheelGuard, includesFieldsThatAreAddedLater)
{
    guardWheel(form);
    auto* const group = new QWidget;
    auto* const groupLayout = new QVBoxLayout(group);
    auto* const inner = new QDateEdit(QDate(2026, 3, 12));
    groupLayout->addWidget(inner);
    layout.insertWidget(0, group);
    auto* const created = new morvane::ui::QScientificSpinBox(&form);
    layout.insertWidget(0, created);
    created->setValue(7);
    EXPECT_TRUE(QTest::qWaitFor([&] { return created->isVisible() && inner->isVisible(); }));
    QApplication::processEvents();
    turnOver(*created);
    EXPECT_GT(scrolled(), 0);
    scrollBack(); // else the other one may be out of sight
    turnOver(*inner);
    EXPECT_EQ(created->value(), 7);
    EXPECT_EQ(inner->date(), QDate(2026, 3, 12));
    EXPECT_GT(scrolled(), 0);
    EXPECT_EQ(created->focusPolicy(), Qt::StrongFocus);
    EXPECT_EQ(inner->focusPolicy(), Qt::StrongFocus);
}

TEST_F(WheelGuard, endsForAWidgetThatLeavesTheForm)
{
    guardWheel(form);
    QWidget elsewhere;
    spin.setParent(&elsewhere);
    QWheelEvent turn(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
        Qt::NoScrollPhase, false);
    QApplication::sendEvent(&spin, &turn);
    EXPECT_EQ(spin.value(), 49);
    spin.setParent(&form);
}

TEST_F(WheelGuard, isTheSameAfterASecondCallAndAroundAnInnerForm)
{
    guardWheel(form);
    const auto children = form.children().size();
    guardWheel(form);
    EXPECT_EQ(form.children().size(), children);
    guardWheel(area);
    turnOver(spin);
    EXPECT_EQ(spin.value(), 50);
    EXPECT_GT(scrolled(), 0);
}

TEST_F(WheelGuard, appliesToTheFormItself)
{
    guardWheel(spin);
    turnOver(spin);
    EXPECT_EQ(spin.value(), 50);
    turnOver(combo);
    EXPECT_EQ(combo.currentIndex(), 2) << "not guarded";
}

TEST_F(WheelGuard, leavesTheOpenListOfAComboBoxAlone)
{
    guardWheel(form);
    QStringList many;
    for (int i = 0; i < 200; ++i) {
        many.append(QString::number(i));
    }
    combo.addItems(many);
    combo.setMaxVisibleItems(5);
    combo.setStyleSheet("QComboBox { combobox-popup: 0 }");
    combo.showPopup();
    QAbstractItemView* const list = combo.view();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(list->window()));
    const int before = list->verticalScrollBar()->value();
    QWheelEvent turn(QPointF(5, 5), list->viewport()->mapToGlobal(QPoint(5, 5)), QPoint(), QPoint(0, -120),
        Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(list->viewport(), &turn);
    EXPECT_GT(list->verticalScrollBar()->value(), before);
    combo.hidePopup();
}

} // namespace
