// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// A wait cursor that is always removed, and that is suspended for a question in the middle of the work.

#include "ui/qt/util/OverrideCursor.h"
#include "ui/qt/util/OverrideCursorRestorer.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QThread>

//! [question]
// Called while the wait cursor is shown. The question needs the normal cursor.
bool isOldDataUnwanted(QWidget* parent)
{
    const morvane::ui::OverrideCursorRestorer ordinaryCursor;
    return QMessageBox::question(parent, "Import", "Replace the old data?") == QMessageBox::Yes;
} // the wait cursor is shown again
//! [question]

//! [work]
void import(QWidget* parent)
{
    const morvane::ui::OverrideCursor busy(Qt::WaitCursor);
    QThread::msleep(800); // represents the first half of the work
    if (!isOldDataUnwanted(parent)) {
        return; // the wait cursor is removed, also by an exception
    }
    QThread::msleep(800);
}
//! [work]

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QPushButton button("&Import");
    QObject::connect(&button, &QPushButton::clicked, &button, [&button] { import(&button); });
    button.resize(200, 60);
    button.show();
    return QApplication::exec();
}
