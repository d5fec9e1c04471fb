// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// A list in the file dialog lets the user choose how the file is read. A preview in the window follows the list.

#include "property/Property.h"
#include "ui/qt/dialogs/ExtendedFileDialog.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

const std::vector<std::string> encodings = {"UTF-8", "UTF-16", "Latin 1"};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window;
    auto* const button = new QPushButton("&Import…");
    auto* const preview = new QLabel("Nothing was imported yet.");

    // The position of the chosen entry. The program keeps it for the next dialog.
    const auto encoding = boost::make_shared<morvane::Property<int>>(0);
    encoding->signalValueChanged.connect([preview](const int& position) {
        preview->setText(
            QString("Read as %1").arg(QString::fromStdString(encodings.at(static_cast<size_t>(position)))));
    });

    QObject::connect(button, &QPushButton::clicked, &window, [&] {
        ExtendedFileDialog dialog(window, "Import", "", "Text (*.txt *.csv)", "", QFileDialog::AcceptOpen);
        //! [options]
        QWidget* const list = dialog.addCustomComboBox("&Encoding:", encodings, encoding);
        // Each entry has a proxy widget of its own.
        dialog.customEntry(list, 1)->setEnabled(false);
        dialog.setAcceptButtonText("&Import");
        //! [options]
        if (dialog.exec() == QDialog::Accepted) {
            button->setText(dialog.selectedFiles().value(0));
        }
    });

    auto* const layout = new QVBoxLayout(&window);
    layout->addWidget(button);
    layout->addWidget(preview);
    window.setWindowTitle("Choose an encoding");
    window.resize(480, 120);
    window.show();
    return application.exec();
}
