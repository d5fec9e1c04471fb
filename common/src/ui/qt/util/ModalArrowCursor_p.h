#pragma once

#include "ui/qt/util/CursorStack_p.h"

#include <QCursor>
#include <QGuiApplication>

namespace morvane::ui {

/** Shows the arrow over the whole application while a modal dialog runs. The dialog may leave other cursors above it.
 */
class ModalArrowCursor
{
public:
    ModalArrowCursor() { QGuiApplication::setOverrideCursor(QCursor(Qt::ArrowCursor)); }
    ~ModalArrowCursor() { takeOffOverrideCursor(Qt::ArrowCursor); }
    ModalArrowCursor(const ModalArrowCursor&) = delete;
    ModalArrowCursor& operator=(const ModalArrowCursor&) = delete;
};

} // namespace morvane::ui
