// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "support/OverrideCursors.h"

#include <QCursor>
#include <QGuiApplication>

#include <algorithm>

namespace morvane::test {

std::vector<Qt::CursorShape> overrideCursors()
{
    // Qt returns only the top of its stack, so this removes all cursors and sets them again.
    std::vector<Qt::CursorShape> shapes;
    while (const QCursor* const top = QGuiApplication::overrideCursor()) {
        shapes.push_back(top->shape());
        QGuiApplication::restoreOverrideCursor();
    }
    std::reverse(shapes.begin(), shapes.end());
    for (const Qt::CursorShape shape : shapes) {
        QGuiApplication::setOverrideCursor(QCursor(shape));
    }
    return shapes;
}

} // namespace morvane::test
