// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// A form: a list that filters, a number with a unit, an integer, and a wheel that only scrolls.

#include "ui/qt/controls/ComboBoxAutoFilter.h"
#include "ui/qt/controls/IntegralSpinBox.h"
#include "ui/qt/controls/QScientificSpinBox.h"
#include "ui/qt/util/WheelGuard.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>

using namespace morvane::ui;

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QDialog form;

    //! [fields]
    auto* const material = new ComboBoxAutoFilter(&form);
    material->addItems({"Aluminium 6061", "Aluminium 7075", "Brass", "Copper", "Steel S235", "Steel S355"});
    material->setFiltering(true);
    material->setEditMode(ComboBoxAutoFilter::FormField);

    auto* const length = new QScientificSpinBox(&form);
    length->setOwnValidation(true);
    length->setNotation(QScientificSpinBox::SiPrefix);
    length->setSuffix("m");
    length->setRange(1e-6, 10);
    length->setValue(0.25);
    length->setRefusalShown(true);

    auto* const pieces = new IntegralSpinBox(&form);
    pieces->setRange(1, 1000);

    guardWheel(form);
    //! [fields]

    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &form, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &form, &QDialog::reject);

    auto* const layout = new QFormLayout(&form);
    layout->addRow("&Material", material);
    layout->addRow("&Length", length);
    layout->addRow("&Pieces", pieces);
    layout->addRow(buttons);
    return form.exec() == QDialog::Accepted ? 0 : 1;
}
