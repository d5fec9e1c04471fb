// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// One call asks for files; the window lists the chosen files.

#include "ui/qt/dialogs/LaunchFileDialogOptions.h"

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
    QStringList files;
    int filter = 0;

    QObject::connect(button, &QPushButton::clicked, &window, [&] {
        morvane::ui::LaunchFileDialogOptions options;
        options.setCaption("Open measurements");
        options.setNameFilters({"Measurements (*.dat *.csv)", "Text (*.txt)", "All files (*)"});
        options.setInitialSelection(files.mid(0, 1)).setInitialFilterIndex(filter);
        options.setAllowMultiple();

        // False if the user cancels; files and filter are not changed then.
        if (!morvane::ui::LaunchFileDialog(files, filter, options)) {
            return;
        }
        list->clear();
        list->addItems(files);
        type->setText(options.nameFilters().value(filter));
    });
    //! [launch]

    auto* const layout = new QVBoxLayout(&window);
    layout->addWidget(button);
    layout->addWidget(list);
    layout->addWidget(type);
    window.setWindowTitle("Opening files");
    window.resize(480, 320);
    window.show();
    return application.exec();
}
