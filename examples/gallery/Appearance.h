#pragma once

#include <QFont>
#include <QIcon>

namespace gallery {

/** Gives the application a dark palette, in a style that honours every colour of it. */
void useDarkPalette();

/** The font of a page's heading: @p base, larger and bold. */
QFont headingFont(QFont base);

/** The program's icon, drawn for each size. */
QIcon applicationIcon();

} // namespace gallery
