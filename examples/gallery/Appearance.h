// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>
#include <QIcon>

namespace gallery {

/** Sets a dark palette, and a style that uses every colour of it. */
void useDarkPalette();

/** Returns the font of a page's heading: @p base, but larger and bold. */
QFont headingFont(QFont base);

/** Returns the program's icon, which is drawn for each size. */
QIcon applicationIcon();

} // namespace gallery
