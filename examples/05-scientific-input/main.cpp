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
    // Type 2.5e-9 and press Return. The point is a point whatever language the computer speaks.
    auto* const capacitance = new QScientificSpinBox(&window);
    capacitance->setSuffix(" F");
    capacitance->setRange(1e-15, 1);
    capacitance->setDecimals(4);         // significant digits, not places behind the point
    capacitance->setOwnValidation(true); // spin boxes share what they refuse otherwise
    capacitance->setValue(4.7e-7);
    //! [number]
    form->addRow("&Capacitance:", capacitance);

    //! [steps]
    // A spin box steps by adding, which is of little use from 1E-15 to 1. With a slot connected to its signal, a step
    // leaves the value alone and calls the slot instead, and the slot does what a step should be.
    capacitance->signalIncrement.connect([capacitance] { capacitance->setValue(capacitance->value() * 10); });
    capacitance->signalDecrement.connect([capacitance] { capacitance->setValue(capacitance->value() / 10); });
    //! [steps]

    // valueChanged comes when the input is complete: after Return, after leaving the field, after a step.
    auto* const time = new QLabel(&window);
    const auto showTime = [=](double farad) { time->setText(QString("%1 s at 1 megohm").arg(farad * 1e6)); };
    QObject::connect(capacitance, QOverload<double>::of(&QDoubleSpinBox::valueChanged), time, showTime);
    showTime(capacitance->value());
    form->addRow("Time constant:", time);

    window.show();
    return QApplication::exec();
}
