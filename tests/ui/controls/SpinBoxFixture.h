// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "support/ActiveWindow.h"
#include "support/SpinBoxButton.h"
#include "ui/qt/controls/Integral64SpinBox.h"
#include "ui/qt/controls/IntegralSpinBox.h"
#include "ui/qt/controls/QScientificSpinBox.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QStyle>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QWidget>

namespace morvane::test {

/** Makes protected members public for the tests. */
template <typename Base>
class Opened : public Base
{
public:
    using Base::Base;
    using Base::keyPressEvent;
    using Base::lineEdit;
};

using ScientificSpinBox = Opened<ui::QScientificSpinBox>;
using IntegerSpinBox = Opened<ui::IntegralSpinBox>;
using Integer64SpinBox = Opened<ui::Integral64SpinBox>;

/** A window with a spin box that has the focus, and another widget that can take it. */
template <typename SpinBox>
struct SpinBoxWindow
{
    SpinBoxWindow() : spin(*new SpinBox(&window)), other(*new QLineEdit(&window))
    {
        auto* const layout = new QVBoxLayout(&window);
        layout->addWidget(&spin);
        layout->addWidget(&other);
        window.show();
        setActiveWindow(window);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        spin.setFocus();
    }

    QString shown() const { return spin.lineEdit()->text(); }

    /** Replaces the text of the spin box by typing. */
    void type(const QString& text)
    {
        spin.selectAll();
        QTest::keyClicks(&spin, text);
    }

    void commit() { QTest::keyClick(&spin, Qt::Key_Return); }

    /** Turns the wheel over the spin box; 120 is one notch up. */
    void turnWheel(int angle) { turnWheel(QPoint(0, angle)); }
    void turnWheel(QPoint angle, QPoint pixels = QPoint(), bool inverted = false)
    {
        const QPointF centre(spin.rect().center());
        QWheelEvent event(centre, spin.mapToGlobal(centre.toPoint()), pixels, angle, Qt::NoButton, Qt::NoModifier,
            Qt::NoScrollPhase, inverted);
        QApplication::sendEvent(&spin, &event);
    }

    /** Clicks on the up or down button of the spin box. */
    void clickButton(QStyle::SubControl button)
    {
        QTest::mouseClick(&spin, Qt::LeftButton, Qt::NoModifier, spinBoxButton(spin, button).center());
    }

    QWidget window;
    SpinBox& spin;
    QLineEdit& other;
};

} // namespace morvane::test
