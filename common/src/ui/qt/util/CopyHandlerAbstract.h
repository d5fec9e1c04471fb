#pragma once

#include "ui/qt/MorvaneUiExport.h"

#include <QObject>

namespace morvane::ui {

/**
 * Gives a widget the platform's copy shortcut without subclassing it.
 *
 * The handler watches the key presses that reach the widget. One that matches `QKeySequence::Copy` calls
 * copyToClipboard() and goes no further: neither the widget nor handlers that were created earlier see it. With several
 * handlers on one widget, the latest one therefore copies. Keys typed into a child of the widget, such as an open cell
 * editor, are the child's own; the handler sees only those that the child ignores.
 *
 * The handler is a child of the watched object and dies with it. It may be deleted earlier, also from within
 * copyToClipboard() or what that triggers. It must not be given another parent, because it refers to the watched
 * object until its end. GUI thread only.
 *
 * @snippet 17-copy-a-list/main.cpp handler
 */
class MORVANE_UI_EXPORT CopyHandlerAbstract : public QObject
{
    Q_OBJECT

public:
    /** Starts watching @p watched, which becomes the parent. */
    explicit CopyHandlerAbstract(QObject& watched);
    /** Stops watching. */
    ~CopyHandlerAbstract() override;

    /**
     * Returns whether @p event was the copy shortcut, after copying. It does not matter which object @p watched is, so
     * the handler may be installed on further objects; removing it from those is then the caller's task.
     */
    bool eventFilter(QObject* watched, QEvent* event) override;

public Q_SLOTS:
    /** Puts the widget's selection on the clipboard; connect actions and buttons to it. */
    virtual void copyToClipboard() = 0;

private:
    QObject* m_watched;
};

} // namespace morvane::ui
