// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// A path in a narrow window: the end of the path stays readable, and the tool tip shows the whole path.

#include "ui/qt/controls/ElidedTextLabel.h"

#include <QApplication>
#include <QVBoxLayout>
#include <QWidget>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window;

    //! [label]
    auto* const path = new ElidedTextLabel(&window);
    path->setText("/projects/turbine/measurements/2026-03-12/run-17/pressure-inlet.dat");
    // The label sets its tool tip while the text is elided, and clears it when the window is wide enough.
    path->setCopyable(true); // Ctrl+C and a context menu copy the whole path
    //! [label]

    auto* const layout = new QVBoxLayout(&window);
    layout->addWidget(path);
    window.setWindowTitle("Make me wider");
    window.resize(220, 40);
    window.show();
    return QApplication::exec();
}
