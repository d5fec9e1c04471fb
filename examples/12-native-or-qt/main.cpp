// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The same code runs two dialogs: a switch for the whole program selects the platform's dialog or the Qt dialog.

#include "ui/qt/dialogs/ExtendedFileDialog.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window;
    auto* const native = new QCheckBox("Use the &native dialog");
    auto* const button = new QPushButton("&Choose a folder…");
    auto* const folder = new QLabel("None chosen yet.");

    //! [switch]
    native->setChecked(ExtendedFileDialog::useNativeFileDialog()); // true initially
    QObject::connect(native, &QCheckBox::toggled, &ExtendedFileDialog::setUseNativeFileDialog);
    //! [switch]

    //! [dialog]
    QObject::connect(button, &QPushButton::clicked, &window, [&] {
        const std::string filter, helpTopic; // both empty
        ExtendedFileDialog dialog(window, "Where to record", "", filter, helpTopic, QFileDialog::AcceptOpen);
        dialog.setFileMode(QFileDialog::Directory);
        dialog.setShowDirectoriesOnly(true);
        if (dialog.exec() == QDialog::Accepted) {
            folder->setText(dialog.selectedFiles().first());
        }
    });
    //! [dialog]

    auto* const layout = new QVBoxLayout(&window);
    layout->addWidget(native);
    layout->addWidget(button);
    layout->addWidget(folder);
    window.setWindowTitle("Native or Qt");
    window.resize(420, 130);
    window.show();
    return QApplication::exec();
}
