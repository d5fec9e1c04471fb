// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Two buttons, each with an explanation. Their texts are never cut off, even in a small window.

#include "ui/qt/controls/CorrectFontCommandLinkButton.h"

#include <QApplication>
#include <QVBoxLayout>
#include <QWidget>

using morvane::ui::CorrectFontCommandLinkButton;

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window;
    auto* const layout = new QVBoxLayout(&window);

    //! [buttons]
    auto* const import = new CorrectFontCommandLinkButton(&window);
    import->setText("&Import a measurement");
    import->setDescription("Reads a file that another program has written.");
    // The minimum size shows both lines completely, in any font.
    layout->addWidget(import);
    //! [buttons]

    auto* const begin = new CorrectFontCommandLinkButton(&window);
    begin->setText("&Begin a new one");
    begin->setDescription("Starts recording with the instruments that are connected.");
    layout->addWidget(begin);

    QObject::connect(import, &QAbstractButton::clicked, &window, &QWidget::close);
    QObject::connect(begin, &QAbstractButton::clicked, &window, &QWidget::close);
    window.setWindowTitle("How do you want to go on?");
    window.show();
    return QApplication::exec();
}
