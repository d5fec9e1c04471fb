// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// A number in scientific notation, and a step that means "one decade" instead of "add one".

#include "ui/qt/controls/QScientificSpinBox.h"

#include <QApplication>
#include <QFormLayout>
#include <QLabel>
#include <QWidget>

using morvane::ui::QScientificSpinBox;

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window;
    window.setWindowTitle("Scientific input");
    auto* const form = new QFormLayout(&window);

    //! [number]
    // Type 2.5e-9 and press Return. The decimal point is always `.`, independent of the locale.
    auto* const capacitance = new QScientificSpinBox(&window);
    capacitance->setSuffix(" F");
    capacitance->setRange(1e-15, 1);
    capacitance->setDecimals(4);         // significant digits, not digits after the point
    capacitance->setOwnValidation(true); // otherwise spin boxes share validation results
    capacitance->setValue(4.7e-7);
    //! [number]
    form->addRow("&Capacitance:", capacitance);

    //! [steps] A step of a spin box adds a fixed number, which is not useful from 1E-15 to 1. If a slot is connected to
    // the signal, a step does not change the value but calls the slot, and the slot performs the step.
    capacitance->signalIncrement.connect([capacitance] { capacitance->setValue(capacitance->value() * 10); });
    capacitance->signalDecrement.connect([capacitance] { capacitance->setValue(capacitance->value() / 10); });
    //! [steps]

    // valueChanged is emitted when the input is complete: after Return, after the field is left, after a step.
    auto* const time = new QLabel(&window);
    const auto showTime = [=](double farad) { time->setText(QString("%1 s at 1 megohm").arg(farad * 1e6)); };
    QObject::connect(capacitance, QOverload<double>::of(&QDoubleSpinBox::valueChanged), time, showTime);
    showTime(capacitance->value());
    form->addRow("Time constant:", time);

    window.show();
    return QApplication::exec();
}
