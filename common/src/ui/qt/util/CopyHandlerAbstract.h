// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/MorvaneUiExport.h"

#include <QObject>

namespace morvane::ui {

/**
 * Adds the platform's copy shortcut to a widget without subclassing the widget.
 *
 * The handler filters the key presses that reach the widget. A key press that matches `QKeySequence::Copy` calls
 * copyToClipboard() and is consumed: neither the widget nor handlers that were created earlier receive it. So if a
 * widget has several handlers, the one that was created last copies. Key presses in a child of the widget, such as an
 * open cell editor, go to the child; the handler receives only those that the child ignores.
 *
 * The handler is a child of the watched object and is destroyed with it. It may be deleted earlier, also in
 * copyToClipboard() or in code that copyToClipboard() calls. Do not change its parent, because the handler uses the
 * watched object in its destructor. GUI thread only.
 *
 * @snippet 17-copy-a-list/main.cpp handler
 */
class MORVANE_UI_EXPORT CopyHandlerAbstract : public QObject
{
    Q_OBJECT

public:
    /** Installs the handler as an event filter on @p watched, which becomes the parent. */
    explicit CopyHandlerAbstract(QObject& watched);
    /** Removes the event filter. */
    ~CopyHandlerAbstract() override;

    /**
     * If @p event is the copy shortcut, calls copyToClipboard() and returns true; otherwise returns false. @p watched
     * is ignored, so the handler may be installed on more objects. The caller must remove it from those.
     */
    bool eventFilter(QObject* watched, QEvent* event) override;

public Q_SLOTS:
    /** Copies the widget's selection to the clipboard. Actions and buttons can be connected to this slot. */
    virtual void copyToClipboard() = 0;

private:
    QObject* m_watched;
};

} // namespace morvane::ui
