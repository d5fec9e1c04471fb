// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/AutoFilterItemView_p.h"

#include <QKeyEvent>
#include <QPointer>

namespace morvane::ui {

void AutoFilterItemView::keyPressEvent(QKeyEvent* event)
{
    const QPointer<AutoFilterItemView> self(this);
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT editingFinished();
        break;
    case Qt::Key_Escape:
        Q_EMIT editingCanceled();
        break;
    case Qt::Key_Up:
    case Qt::Key_Down:
        QListView::keyPressEvent(event);
        Q_EMIT currentIndexChanged(currentIndex());
        return;
    default:
        break;
    }
    if (self) {
        QListView::keyPressEvent(event);
    }
}

} // namespace morvane::ui
