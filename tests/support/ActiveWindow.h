// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QWidget>

namespace morvane::test {

/**
 * Makes `window` the active one at once, without a window system. Qt deprecates the function since 6.5; the one that it
 * names instead only asks the window system.
 */
inline void setActiveWindow(QWidget& window)
{
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    QApplication::setActiveWindow(&window);
    QT_WARNING_POP
}

} // namespace morvane::test
