// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// A long form that scrolls. The wheel scrolls it and does not change its fields.

#include "ui/qt/controls/QScientificSpinBox.h"
#include "ui/qt/util/WheelGuard.h"

#include <QApplication>
#include <QComboBox>
#include <QFormLayout>
#include <QScrollArea>
#include <QWidget>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QScrollArea area;
    area.setWindowTitle("Guard the wheel");
    area.setWidgetResizable(true);
    auto* const page = new QWidget;
    auto* const form = new QFormLayout(page);
    for (int channel = 1; channel <= 20; ++channel) {
        auto* const gain = new morvane::ui::QScientificSpinBox(page);
        gain->setStepMode(morvane::ui::QScientificSpinBox::Decade);
        gain->setValue(1);
        auto* const filter = new QComboBox(page);
        filter->addItems({"no filter", "low pass", "high pass"});
        form->addRow(QString("Gain %1:").arg(channel), gain);
        form->addRow(QString("Filter %1:").arg(channel), filter);
    }
    area.setWidget(page);

    //! [guard]
    // Spin boxes and combo boxes react to the wheel only when they have the focus. Otherwise the area scrolls.
    morvane::ui::guardWheel(area);
    //! [guard]

    area.resize(400, 300);
    area.show();
    return QApplication::exec();
}
