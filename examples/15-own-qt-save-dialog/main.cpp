// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The save flow with a Qt dialog that you configure: a derived class has access to the dialog.

#include "ui/qt/dialogs/QExtendedFileDialog.h"
#include "ui/qt/dialogs/SaveFileQtDialog.h"

#include <QApplication>
#include <QSize>
#include <QWidget>

//! [derived]
class ExportDialog : public SaveFileQtDialog
{
public:
    explicit ExportDialog(QWidget& window)
        : SaveFileQtDialog(&window, "Export", "", "curves", {"Table (*.csv)", "Picture (*.png)"}, 0, "")
    {
        dialog()->setGeometryPersistenceKey("Export/Geometry");
        dialog()->setDefaultSize(QSize(900, 600));
        dialog()->setViewMode(QFileDialog::Detail); // the dialog is a QFileDialog
    }
};
//! [derived]

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName("15-own-qt-save-dialog");
    QWidget window;
    window.resize(320, 90);
    window.show();

    ExportDialog dialog(window);
    const bool isPicture = dialog.launch() && dialog.selectedWriter() == 1;
    window.setWindowTitle(isPicture ? "A picture" : "A table, or nothing");
    return QApplication::exec();
}
