// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The platform's file dialog with our own controls: a check box, a button, and a menu on the accept button.

#include "property/Property.h"
#include "ui/qt/dialogs/ExtendedWinFileDialog.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);

    QWidget window;
    auto* const button = new QPushButton("&Export…");
    auto* const result = new QLabel("Nothing was exported yet.");

    // The check box in the dialog shows and sets this value. The program keeps it for the next dialog.
    const auto compress = boost::make_shared<morvane::Property<bool>>(true);

    QObject::connect(button, &QPushButton::clicked, &window, [&] {
        //! [dialog]
        const bool useAcceptMenu = true;
        ExtendedWinFileDialog dialog(
            window, "Export", "", "Archive (*.zip);;Table (*.csv)", "", QFileDialog::AcceptSave, useAcceptMenu);
        dialog.selectFile("measurement.zip");

        // Each call returns a proxy widget for the control. Hide or disable it, also while the dialog is open.
        QWidget* const box = dialog.addCustomCheckBox("Compress", compress);
        dialog.addCustomButton("Lock compression", [box] { box->setEnabled(!box->isEnabled()); });

        enum
        {
            Export,
            ExportAndClose
        };
        dialog.addAcceptButtonOption("Export", Export);
        dialog.addAcceptButtonOption("Export and close", ExportAndClose);

        if (dialog.exec() != QDialog::Accepted) {
            return;
        }
        result->setText(dialog.selectedFiles().first() + (compress->value() ? ", compressed" : ", as it is"));
        if (dialog.selectedAcceptMenuOption() == ExportAndClose) {
            window.close();
        }
        //! [dialog]
    });

    auto* const layout = new QVBoxLayout(&window);
    layout->addWidget(button);
    layout->addWidget(result);
    window.setWindowTitle("Controls in the native dialog");
    window.resize(480, 120);
    window.show();
    return application.exec();
}
