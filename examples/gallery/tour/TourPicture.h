// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPixmap>

class QWidget;

namespace gallery {

/**
 * Returns a picture of @p mainWindow with every open dialog and popup. It is grabbed from the screen, or drawn if there
 * is no screen to grab from.
 */
QPixmap takeTourPicture(QWidget& mainWindow);

} // namespace gallery
