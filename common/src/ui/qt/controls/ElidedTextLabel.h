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
 * The text is plain text. Markup and links are shown as they are written, and `&` is no mnemonic: `R&D` is shown with
 * its
 * `&`. Line breaks count as blanks.
 *
 * The property `elideMode` is Qt::ElideLeft initially. With another mode, the middle or the end of the text is elided,
 * or with Qt::ElideNone it is cut off; the rule for the tool tip is the same.
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
    /** Whether the user can copy the whole text; false initially. */
    Q_PROPERTY(bool copyable READ isCopyable WRITE setCopyable)

public:
    /**
     * @param parent owner; null: a top-level window that the caller deletes
     * @param flags  window flags, see QWidget
     */
    explicit ElidedTextLabel(QWidget* parent = nullptr, Qt::WindowFlags flags = {});
    ~ElidedTextLabel() override;

    /** False initially. */
    bool isCopyable() const;
    /**
     * True: the copy shortcut and a context menu with "Copy" put the whole text on the clipboard. The label gets the
     * focus by Tab and by clicks then, and shows it; the focus policy and the context menu policy do not change if the
     * host has set others than Qt::NoFocus and Qt::DefaultContextMenu. Nothing is copied if the text is empty. False:
     * the label has neither of these.
     */
    void setCopyable(bool on);

protected:
    /** Paints the text, and the frame of the focus if the text is copyable. Updates the tool tip. */
    void paintEvent(QPaintEvent* event) override;
};
