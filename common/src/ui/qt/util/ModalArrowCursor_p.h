// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/util/CursorStack_p.h"

#include <QCursor>
#include <QGuiApplication>

namespace morvane::ui {

/** Shows the arrow in the whole application while a modal dialog runs. Other cursors may remain above it. */
class ModalArrowCursor
{
public:
    ModalArrowCursor() { QGuiApplication::setOverrideCursor(QCursor(Qt::ArrowCursor)); }
    ~ModalArrowCursor() { takeOffOverrideCursor(Qt::ArrowCursor); }
    ModalArrowCursor(const ModalArrowCursor&) = delete;
    ModalArrowCursor& operator=(const ModalArrowCursor&) = delete;
};

} // namespace morvane::ui
