// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Numbers as engineers type and read them: with units and prefixes, in their own language, and as registers of 64 bits.

#include "ui/qt/controls/Integral64SpinBox.h"
#include "ui/qt/controls/QScientificSpinBox.h"

#include <QApplication>
#include <QFormLayout>
#include <QWidget>

using morvane::ui::Integral64SpinBox;
using morvane::ui::QScientificSpinBox;

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window;
    window.setWindowTitle("Units and prefixes");
    auto* const form = new QFormLayout(&window);

    //! [notation]
    // 4.7E-06 is shown as 4.7 µV, and typed as 4.7u, 4.7 µV, 4.7e-6 or 4.7E-6 V.
    auto* const offset = new QScientificSpinBox(&window);
    offset->setNotation(QScientificSpinBox::SiPrefix);
    offset->setSuffix("V");
    offset->setStepMode(QScientificSpinBox::LastDigit); // the arrow keys change the digit at the cursor
    offset->setRefusalShown(true);                      // a text that is not acceptable is red
    offset->setValue(4.7e-6);
    //! [notation]
    offset->setMinimumWidth(20 * offset->fontMetrics().averageCharWidth());
    form->addRow("&Offset:", offset);

    //! [locale]
    // The user's own decimal sign and groups. Pasted numbers may come from elsewhere if they have only one meaning.
    auto* const load = new QScientificSpinBox(&window);
    load->setNumberLocale(QLocale::system());
    load->setGroupSeparatorShown(true);
    load->setSuffix(" N");
    load->setStepMode(QScientificSpinBox::OneTwoFive); // 1, 2, 5, 10, 20, 50, ...
    load->setRefusalShown(true);
    load->setValue(12500.5);
    //! [locale]
    form->addRow("&Load:", load);

    //! [integer]
    auto* const address = new Integral64SpinBox(&window);
    address->setRange(0, 0x7fffffffffffffff);
    address->setBase(Integral64SpinBox::Hexadecimal);
    address->setPrefix("0x");
    address->setGroupSeparator("_");
    address->setSingleStep(8);
    address->setValue(0xdeadbeef0000); // 0xDEAD_BEEF_0000
    //! [integer]
    form->addRow("&Address:", address);

    window.show();
    return QApplication::exec();
}
