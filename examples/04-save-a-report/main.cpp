// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// One object asks for a file name for saving. The returned name has the extension of the chosen type, may be
// overwritten, and can be written.

#include "ui/qt/dialogs/SaveFileDialog.h"

#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// One file format for each name filter, in the same order.
const std::vector<std::string> writerFilters = {"Text (*.txt)", "Table (*.csv)"};

QByteArray report(int writer)
{
    return writer == 1 ? "sensor,reading\nT1,21.5\nP1,1013.2\n" : "T1 reads 21.5\nP1 reads 1013.2\n";
}

void save(QWidget& window)
{
    //! [flow]
    const int firstWriter = 0;
    const std::string helpTopic; // empty: no Help button
    SaveFileDialog dialog(&window, "Save report", "", "report", writerFilters, firstWriter, helpTopic);

    // Asks before a file is replaced, and for another location if a file cannot be written.
    if (!dialog.launch()) {
        return;
    }
    QFile file(QString::fromStdString(dialog.selectedFilename()));
    const QByteArray content = report(dialog.selectedWriter());
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.flush()) {
        QMessageBox::warning(&window, "Save report", file.errorString()); // the disk may be full now
        return;
    }
    //! [flow]
    QMessageBox::information(&window, "Save report", "Written: " + file.fileName());
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window;
    auto* const button = new QPushButton("&Save report…");
    QObject::connect(button, &QPushButton::clicked, &window, [&window] { save(window); });
    auto* const layout = new QVBoxLayout(&window);
    layout->addWidget(button);
    window.setWindowTitle("Saving a report");
    window.resize(320, 90);
    window.show();
    return application.exec();
}
