// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/MorvaneUiExport.h"

#include <QString>

class QWidget;

/**
 * Updates the tool tip of a widget that elides its text, so that there is a tool tip only while the text is too wide.
 *
 * @snippet 10-elide-your-own/main.cpp rule
 */
class MORVANE_UI_EXPORT ElidedTextUtil
{
public:
    virtual ~ElidedTextUtil();

    /**
     * Sets @p toolTip as the tool tip of the widget if the text is wider than @p availableWidth; otherwise clears the
     * tool tip. A text exactly as wide as @p availableWidth fits. A tool tip that is neither empty nor equal to
     * @p toolTip is not changed, because other code has set it. If the tool tip is already right, the widget receives
     * no event, so a paint event handler may call this function.
     *
     * @param widget         not null; the text is measured with its font
     * @param availableWidth in device-independent pixels
     * @param text           the whole text, one line
     * @param toolTip        the tool tip while the text is too wide; may be empty
     */
    virtual void updateToolTip(QWidget* widget, int availableWidth, const QString& text, const QString& toolTip);
};
