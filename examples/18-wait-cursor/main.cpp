// A wait cursor that cannot be forgotten, and that makes way for a question in the middle of the work.

#include "ui/qt/util/OverrideCursor.h"
#include "ui/qt/util/OverrideCursorRestorer.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QThread>

//! [question]
// Called while the wait cursor shows: nobody likes to answer with an hourglass in hand.
bool isOldDataUnwanted(QWidget* parent)
{
    const morvane::ui::OverrideCursorRestorer ordinaryCursor;
    return QMessageBox::question(parent, "Import", "Replace the old data?") == QMessageBox::Yes;
} // the wait cursor is back
//! [question]

//! [work]
void import(QWidget* parent)
{
    const morvane::ui::OverrideCursor busy(Qt::WaitCursor);
    QThread::msleep(800); // stands for the first half of the work
    if (!isOldDataUnwanted(parent)) {
        return; // an exception would end the wait cursor just as well
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
