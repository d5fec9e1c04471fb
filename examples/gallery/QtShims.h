// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

// What Qt 5 and Qt 6 spell differently. The only place of the gallery that asks for the version of Qt.

#include <QCoreApplication>

namespace gallery {

/** Before the application object: the interface and its icons follow the density of the screen. Qt 6 does that by
 * itself. */
inline void enableHighDpi()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
}

} // namespace gallery
