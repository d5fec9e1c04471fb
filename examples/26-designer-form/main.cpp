// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// A form made with Qt Designer: MeasurementForm.ui contains the library's widgets, and uic generates the class
// Ui::MeasurementForm from it. To change the form, open it with Designer; the installed plugin provides the widgets.

#include "ui_MeasurementForm.h"

#include <QApplication>
#include <QMessageBox>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    //! [form]
    QWidget window;
    Ui::MeasurementForm form;
    form.setupUi(&window);

    // The widgets have the names that were set in Designer.
    QObject::connect(form.start, &QAbstractButton::clicked, &window, [&] {
        // If the suggestions are closed, Alt+T does not move the focus, so the typed text must be validated here.
        form.substance->validateEntry();
        QMessageBox::information(&window, "Measurement",
            QString("%1 samples of %2 at %3 A")
                .arg(form.samples->value())
                .arg(form.substance->itemText(form.substance->currentIndex()))
                .arg(form.current->value()));
    });
    //! [form]
    window.show();
    return QApplication::exec();
}
