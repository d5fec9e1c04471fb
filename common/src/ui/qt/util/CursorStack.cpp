// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/CursorStack_p.h"

#include <QCursor>
#include <QGuiApplication>

#include <algorithm>
#include <vector>

namespace morvane::ui {

void takeOffOverrideCursor(Qt::CursorShape shape)
{
    // Qt removes only the top of the stack. So the cursors above are removed, too, and put back afterwards.
    std::vector<QCursor> above;
    bool found = false;
    while (const QCursor* const top = QGuiApplication::overrideCursor()) {
        above.push_back(*top);
        QGuiApplication::restoreOverrideCursor();
        found = above.back().shape() == shape;
        if (found) {
            break;
        }
    }
    if (!above.empty()) {
        above.erase(found ? above.end() - 1 : above.begin());
    }
    std::for_each(
        above.rbegin(), above.rend(), [](const QCursor& cursor) { QGuiApplication::setOverrideCursor(cursor); });
}

} // namespace morvane::ui
