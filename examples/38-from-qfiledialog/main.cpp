// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Saving a text with QFileDialog, and the same with the save flow.

#include "ui/qt/dialogs/SaveFileDialog.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

void write(QWidget& window, const QString& name)
{
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write("Measurement\n") < 0 || !file.flush()) {
        QMessageBox::warning(&window, "Save", file.errorString());
    }
}

//! [before]
void saveBefore(QWidget& window)
{
    const QString name = QFileDialog::getSaveFileName(&window, "Save", "run-17", "Table (*.csv);;Text (*.txt)");
    if (!name.isEmpty()) {
        write(window, name); // perhaps without an extension, perhaps where nothing can be written
    }
}
//! [before]

//! [after]
void saveAfter(QWidget& window)
{
    SaveFileDialog dialog(&window, "Save", "", "run-17", "Table (*.csv);;Text (*.txt)", "");
    if (dialog.launch()) {
        write(window, QString::fromStdString(dialog.selectedFilename()));
    }
}
//! [after]

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window;
    auto* const before = new QPushButton("Save with &QFileDialog…");
    auto* const after = new QPushButton("Save with the &flow…");
    QObject::connect(before, &QPushButton::clicked, &window, [&window] { saveBefore(window); });
    QObject::connect(after, &QPushButton::clicked, &window, [&window] { saveAfter(window); });
    auto* const layout = new QVBoxLayout(&window);
    layout->addWidget(before);
    layout->addWidget(after);
    window.show();
    return application.exec();
}
