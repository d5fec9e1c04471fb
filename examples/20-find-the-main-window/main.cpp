// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Code without a pointer to the windows shows a message in the status bar.

#include "ui/qt/util/MainWindow.h"

#include <QApplication>
#include <QMainWindow>
#include <QPushButton>
#include <QStatusBar>

//! [find]
void announce(const QString& message)
{
    // The result is cached. Pass true after the application has replaced its main window.
    const bool searchAgain = false;
    if (QMainWindow* const window = morvane::ui::findMainWindow(searchAgain)) {
        window->statusBar()->showMessage(message);
    }
}
//! [find]

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    auto* const button = new QPushButton("&Measure");
    QObject::connect(button, &QPushButton::clicked, [] { announce("21.5 °C"); });
    window.setCentralWidget(button);
    window.resize(320, 120);
    window.show();
    return QApplication::exec();
}
