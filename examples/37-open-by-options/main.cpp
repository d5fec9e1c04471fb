// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Asking for files with options that have names. All texts are QStrings, so they can come from tr().

#include "ui/qt/dialogs/LaunchFileDialogOptions.h"

#include <QApplication>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);

    QWidget window;
    auto* const button = new QPushButton("&Open…");
    auto* const list = new QListWidget;

    //! [options]
    QStringList files;
    QObject::connect(button, &QPushButton::clicked, &window, [&] {
        morvane::ui::LaunchFileDialogOptions options;
        options.setCaption(QObject::tr("Open measurements"))
            .setNameFilters({QObject::tr("Measurements (*.dat *.csv)"), QObject::tr("All files (*)")})
            .setInitialSelection(files.mid(0, 1))
            .setAllowMultiple();
        if (morvane::ui::LaunchFileDialog(files, options)) {
            list->clear();
            list->addItems(files);
        }
    });
    //! [options]

    auto* const layout = new QVBoxLayout(&window);
    layout->addWidget(button);
    layout->addWidget(list);
    window.setWindowTitle("Opening files by options");
    window.resize(480, 320);
    window.show();
    return application.exec();
}
