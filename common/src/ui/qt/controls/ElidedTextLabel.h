#pragma once

#include "ui/qt/compat/QxtLabel.h"
#include "ui/qt/MorvaneUiExport.h"

/**
 * A one-line label for texts whose end matters, such as paths: what does not fit is cut off at the start and stands in
 * the tool tip, which is there only while the text is cut.
 *
 * The text starts at the leading edge. The tool tip follows text, size and font with the next paint. A tool tip that
 * the host sets to another text stays whatever the width; an empty one gives the tool tip back to the label.
 *
 * Assistive software is told the whole text, unless the host sets an accessible name.
 *
 * Text and alignment are the base class's: setText(), setAlignment(), setElideMode(). That is Morvane's stand-in for
 * Qxt's QxtLabel, or QxtLabel itself where Morvane was built with MORVANE_WITH_QXT. ElidedTextLabel::QxtLabel names it
 * in both cases; its meta-object has another name in each. Style sheets select `ElidedTextLabel`.
 *
 * @snippet 09-long-paths/main.cpp label
 */
class MORVANE_UI_EXPORT ElidedTextLabel : public morvane::compat::QxtLabel
{
    Q_OBJECT

public:
    /**
     * @param parent owner; null for a window of its own that the caller deletes
     * @param flags  as QWidget takes them
     */
    explicit ElidedTextLabel(QWidget* parent = nullptr, Qt::WindowFlags flags = {});
    ~ElidedTextLabel() override;

protected:
    /** Draws the text and settles the tool tip. */
    void paintEvent(QPaintEvent* event) override;
};
