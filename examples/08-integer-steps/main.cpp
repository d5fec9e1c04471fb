// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// An integer whose steps double and halve it, for sizes that are powers of two.

#include "ui/qt/controls/IntegralSpinBox.h"

#include <QApplication>
#include <QFormLayout>
#include <QWidget>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window;
    window.setWindowTitle("Steps of your own");
    auto* const form = new QFormLayout(&window);

    //! [steps]
    auto* const samples = new morvane::ui::IntegralSpinBox(&window);
    samples->setRange(1, 65536);
    samples->setValue(1024);

    // A connected slot replaces the step. The spin box itself then does not change the value.
    samples->signalIncrement.connect([samples] { samples->setValue(samples->value() * 2); });
    samples->signalDecrement.connect([samples] { samples->setValue(samples->value() / 2); });
    //! [steps]

    form->addRow("&Samples:", samples);
    window.show();
    return QApplication::exec();
}
