#pragma once

#include "ui/qt/MorvaneUiExport.h"

#include <QString>

class QWidget;

/**
 * The rule by which a widget that shortens its text shows the whole of it as tool tip.
 *
 * @snippet 10-elide-your-own/main.cpp rule
 */
class MORVANE_UI_EXPORT ElidedTextUtil
{
public:
    virtual ~ElidedTextUtil();

    /**
     * Gives the widget the tool tip while the text is wider than there is room, and none while it fits; a text exactly
     * as wide as the room fits. A tool tip that is neither empty nor this one is somebody else's and stays. When the
     * tool tip is right already the widget gets no event, so painting may call this.
     *
     * @param widget         not null; its font is measured with
     * @param availableWidth in device-independent pixels
     * @param text           the whole text, in one line
     * @param toolTip        shown while the text is cut; may be empty
     */
    virtual void updateToolTip(QWidget* widget, int availableWidth, const QString& text, const QString& toolTip);
};
