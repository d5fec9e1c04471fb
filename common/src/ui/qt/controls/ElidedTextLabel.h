// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/compat/QxtLabel.h"
#include "ui/qt/MorvaneUiExport.h"

/**
 * A one-line label for texts whose end is important, such as paths. If the text is too wide, its start is elided, and
 * the tool tip shows the whole text. There is no tool tip while the text fits.
 *
 * Initially the text is aligned to the leading edge. The tool tip is updated with the next paint after a change of
 * text, size or font. If the host sets another tool tip, it stays, independent of the width. If the host sets an empty
 * tool tip, the label sets its own again.
 *
 * Assistive software receives the whole text, unless the host sets an accessible name.
 *
 * setText(), setAlignment() and setElideMode() are members of the base class. The base class is QxtLabel of Qxt if
 * Morvane was built with MORVANE_WITH_QXT. Otherwise it is Morvane's own replacement for QxtLabel.
 * ElidedTextLabel::QxtLabel is its name in both cases; the class name in its meta-object differs. Style sheets select
 * `ElidedTextLabel`.
 *
 * @snippet 09-long-paths/main.cpp label
 */
class MORVANE_UI_EXPORT ElidedTextLabel : public morvane::compat::QxtLabel
{
    Q_OBJECT

public:
    /**
     * @param parent owner; null: a top-level window that the caller deletes
     * @param flags  window flags, see QWidget
     */
    explicit ElidedTextLabel(QWidget* parent = nullptr, Qt::WindowFlags flags = {});
    ~ElidedTextLabel() override;

protected:
    /** Paints the text and updates the tool tip. */
    void paintEvent(QPaintEvent* event) override;
};
