// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/OverrideCursor.h"

#include "ui/qt/util/GuiThread_p.h"

#include <QCursor>
#include <QGuiApplication>

namespace morvane::ui {

OverrideCursor::OverrideCursor(Qt::CursorShape shape)
{
    expectGuiThread("OverrideCursor");
    QGuiApplication::setOverrideCursor(QCursor(shape));
}

OverrideCursor::~OverrideCursor()
{
    QGuiApplication::restoreOverrideCursor();
}

} // namespace morvane::ui
