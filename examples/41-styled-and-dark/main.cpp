// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// A dark palette, and a style sheet for refused numbers.

#include "ui/qt/controls/ElidedTextLabel.h"
#include "ui/qt/controls/QScientificSpinBox.h"

#include <QApplication>
#include <QFormLayout>
#include <QPalette>
#include <QStyleFactory>

namespace {

//! [palette]
QPalette darkPalette()
{
    const QColor text(0xe6, 0xe6, 0xe6);
    QPalette palette(QColor(0x3c, 0x3f, 0x43), QColor(0x2b, 0x2d, 0x30)); // button and window; the rest is derived
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, text.darker(170));
    }
    palette.setColor(QPalette::Base, QColor(0x1e, 0x1f, 0x22));
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x73, 0xab));
    return palette;
}
//! [palette]

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create("Fusion")); // the styles of Windows ignore much of a palette
    QApplication::setPalette(darkPalette());

    QWidget window;
    auto* const charge = new morvane::ui::QScientificSpinBox(&window);
    charge->setRange(0, 1e-6);
    charge->setValue(1.5e-7);
    charge->setToolTip("Type 1 and Return: it is more than 1E-06.");

    auto* const file = new ElidedTextLabel(&window);
    file->setText("/home/someone/measurements/2026/bench-3/run-17.csv");

    //! [sheet]
    charge->setRefusalShown(true);
    window.setStyleSheet("QAbstractSpinBox[textRefused=\"true\"] { border: 2px solid #ff6b6b; }");
    //! [sheet]

    auto* const layout = new QFormLayout(&window);
    layout->addRow("&Charge", charge);
    layout->addRow("Stored in", file);
    window.resize(320, 90);
    window.show();
    return application.exec();
}
