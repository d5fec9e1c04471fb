#include "ui/qt/util/OverrideCursor.h"

#include <QCursor>
#include <QGuiApplication>

namespace morvane::ui {

OverrideCursor::OverrideCursor(Qt::CursorShape shape)
{
    QGuiApplication::setOverrideCursor(QCursor(shape));
}

OverrideCursor::~OverrideCursor()
{
    QGuiApplication::restoreOverrideCursor();
}

} // namespace morvane::ui
