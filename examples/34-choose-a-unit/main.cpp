// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Radio buttons in a group of the file dialog, and a check that keeps the dialog open until the unit fits the file.

#include "property/Property.h"
#include "ui/qt/dialogs/ExtendedFileDialog.h"

#include <QApplication>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window;
    auto* const button = new QPushButton("&Open drawing…");
    auto* const result = new QLabel("Nothing is open.");
    const std::vector<std::string> units = {"&Millimetres", "&Inches"};
    const auto unit = boost::make_shared<morvane::Property<int>>(0);

    QObject::connect(button, &QPushButton::clicked, &window, [&] {
        ExtendedFileDialog dialog(
            window, "Open drawing", "", "Drawings (*.plt);;Maps (*.map)", "", QFileDialog::AcceptOpen);
        //! [group]
        dialog.beginCustomGroup("Drawing");
        dialog.addCustomText("The file does not say in which unit it was drawn.");
        dialog.addCustomRadioButtons("Unit:", units, unit);
        dialog.endCustomGroup();
        //! [group]
        //! [check]
        dialog.setAcceptanceCheck([&](const QStringList& paths) {
            const bool isMap = QFileInfo(paths.value(0)).suffix() == "map";
            return isMap && unit->value() == 1 ? morvane::ValidationResult("Maps are always in millimetres.")
                                               : morvane::ValidationResult();
        });
        //! [check]
        if (dialog.exec() == QDialog::Accepted) {
            result->setText(
                dialog.selectedFiles().value(0) + (unit->value() == 1 ? ", in inches" : ", in millimetres"));
        }
    });

    auto* const layout = new QVBoxLayout(&window);
    layout->addWidget(button);
    layout->addWidget(result);
    window.setWindowTitle("Choose a unit");
    window.resize(480, 120);
    window.show();
    return application.exec();
}
