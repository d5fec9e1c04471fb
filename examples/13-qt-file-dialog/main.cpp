// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The Qt file dialog that stores its geometry: it opens with its last size and position, also in the next run.

#include "ui/qt/dialogs/QExtendedFileDialog.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName("13-qt-file-dialog"); // the settings are stored under this name
    QWidget window;
    auto* const button = new QPushButton("&Open measurement…");
    auto* const chosen = new QLabel("Type *cal* as the file name to see only names with cal in them.");

    QObject::connect(button, &QPushButton::clicked, &window, [&] {
        //! [dialog]
        QExtendedFileDialog dialog(
            window, "Open measurement", "", "Data (*.dat);;All (*)", "opening", QFileDialog::AcceptOpen);
        dialog.setGeometryPersistenceKey("OpenMeasurement/Geometry"); // this dialog has its own geometry
        dialog.setDefaultSize(QSize(900, 600));                       // if no geometry is stored
        if (dialog.exec() == QDialog::Accepted) {
            chosen->setText(dialog.selectedFiles().first());
        }
        //! [dialog]
    });

    auto* const layout = new QVBoxLayout(&window);
    layout->addWidget(button);
    layout->addWidget(chosen);
    window.setWindowTitle("A dialog that remembers");
    window.resize(460, 90);
    window.show();
    return QApplication::exec();
}
