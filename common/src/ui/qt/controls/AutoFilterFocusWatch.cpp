// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/AutoFilterFocusWatch_p.h"

#include <QApplication>
#include <QWidget>

#include <utility>

namespace morvane::ui {

bool AutoFilterFocusWatch::comesBackAfter(Qt::FocusReason reason)
{
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason;
}

void AutoFilterFocusWatch::start(std::function<void()> onLeft)
{
    stop();
    const auto onFocusChanged = [this, onLeft = std::move(onLeft)](QWidget*, QWidget* now) {
        if (now && now != &m_field && !m_field.isAncestorOf(now) && now->window() == m_field.window()) {
            stop();
            onLeft();
        }
    };
    m_connection = QObject::connect(qApp, &QApplication::focusChanged, &m_field, onFocusChanged);
}

void AutoFilterFocusWatch::stop()
{
    QObject::disconnect(m_connection);
}

} // namespace morvane::ui
