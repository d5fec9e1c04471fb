// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMetaObject>
#include <Qt>

#include <functional>

class QWidget;

namespace morvane::ui {

/**
 * Finds out whether a ComboBoxAutoFilter has really lost the focus. While another window, a menu or a popup has the
 * focus, the combo box may still get it back, or another widget of the same window may get it.
 */
class AutoFilterFocusWatch
{
public:
    explicit AutoFilterFocusWatch(QWidget& field) : m_field(field) {}
    ~AutoFilterFocusWatch() { stop(); }
    AutoFilterFocusWatch(const AutoFilterFocusWatch&) = delete;
    AutoFilterFocusWatch& operator=(const AutoFilterFocusWatch&) = delete;

    /** Whether the focus usually comes back after it was lost for this reason. */
    static bool comesBackAfter(Qt::FocusReason reason);

    /** Calls `onLeft` once, when another widget of the window gets the focus. `onLeft` may destroy this object. */
    void start(std::function<void()> onLeft);
    void stop();

private:
    QWidget& m_field;
    QMetaObject::Connection m_connection;
};

} // namespace morvane::ui
