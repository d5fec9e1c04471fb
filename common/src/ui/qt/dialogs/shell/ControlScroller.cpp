// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/shell/ControlScroller_p.h"

#include <QEvent>
#include <QScrollBar>

#include <algorithm>

namespace morvane::ui {

ControlScroller::ControlScroller(QWidget* content, QWidget* parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setWidget(content);
    // The dialog's background, not that of a list.
    content->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    content->installEventFilter(this);
}

ControlScroller::~ControlScroller() = default;

QSize ControlScroller::sizeHint() const
{
    const int width = std::max(this->width(), minimumSizeHint().width());
    return {width, heightForWidth(width)};
}

QSize ControlScroller::minimumSizeHint() const
{
    const QSize content = widget()->minimumSizeHint();
    const bool scrolls = widget()->heightForWidth(content.width()) > highest();
    const int bar = scrolls ? verticalScrollBar()->sizeHint().width() : 0;
    return {content.width() + bar, std::min(content.height(), highest())};
}

int ControlScroller::heightForWidth(int width) const
{
    return std::min(widget()->heightForWidth(width), highest());
}

bool ControlScroller::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest) {
        updateGeometry(); // a control was shown, hidden or renamed
    }
    return QScrollArea::eventFilter(watched, event);
}

int ControlScroller::highest() const
{
    constexpr int linesOfText = 14;
    return linesOfText * fontMetrics().lineSpacing();
}

} // namespace morvane::ui
