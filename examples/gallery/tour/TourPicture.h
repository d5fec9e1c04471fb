#pragma once

#include <QPixmap>

class QWidget;

namespace gallery {

/**
 * @p mainWindow with every dialog and popup that is open: as the screen shows them, or drawn into one picture where
 * there is no screen to grab.
 */
QPixmap takeTourPicture(QWidget& mainWindow);

} // namespace gallery
