// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The launcher for a program whose texts are std::string: one call with all arguments.

#include "ui/qt/dialogs/LaunchFileDialog.h"

#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);

    QWidget window;
    auto* const button = new QPushButton("&Open…");
    auto* const list = new QListWidget;
    auto* const type = new QLabel("Nothing was chosen yet.");

    //! [launch]
    // Both keep their values between two calls, so the next dialog starts with the last files and filter.
    std::vector<std::string> files;
    int filter = 0;

    QObject::connect(button, &QPushButton::clicked, &window, [&] {
        const std::vector<std::string> filters = {"Measurements (*.dat *.csv)", "Text (*.txt)", "All files (*)"};
        const bool saveMode = false;
        const bool allowMultiple = true;
        const std::vector<std::string> startAt(files.begin(), files.begin() + (files.empty() ? 0 : 1));

        // False if the user cancels; files and filter are not changed then.
        if (!morvane::ui::LaunchFileDialog(files, filter, "Open", filters, startAt, saveMode, allowMultiple, filter)) {
            return;
        }
        list->clear();
        for (const std::string& file : files) {
            list->addItem(QString::fromStdString(file)); // all text of the library is UTF-8
        }
        type->setText(filter < 0 ? QString() : QString::fromStdString(filters[static_cast<size_t>(filter)]));
    });
    //! [launch]

    auto* const layout = new QVBoxLayout(&window);
    layout->addWidget(button);
    layout->addWidget(list);
    layout->addWidget(type);
    window.setWindowTitle("Opening files, std::string");
    window.resize(480, 320);
    window.show();
    return application.exec();
}
