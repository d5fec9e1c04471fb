// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/ElidedTextLabel.h"

#include "ui/qt/controls/ElidedTextAccessible_p.h"
#include "ui/qt/controls/ElidedTextCopyHandler_p.h"
#include "ui/qt/controls/ElidedTextUtil.h"
#include "ui/qt/util/GuiThread_p.h"

#include <QAccessible>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

ElidedTextLabel::ElidedTextLabel(QWidget* parent, Qt::WindowFlags flags) : QxtLabel(parent, flags)
{
    morvane::ui::expectGuiThread("ElidedTextLabel");
    morvane::ui::installElidedTextAccessible();
    setAlignment(Qt::AlignLeft);
    setElideMode(Qt::ElideLeft);
    // The tool tip for the previous text is removed. Otherwise paintEvent() would treat it as a tool tip of the host.
    connect(this, &QxtLabel::textChanged, this, [this, before = text()](const QString& now) mutable {
        if (!before.isEmpty() && toolTip() == before) {
            setToolTip(QString());
        }
        before = now;
        QAccessibleEvent renamed(this, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&renamed);
    });
}

ElidedTextLabel::~ElidedTextLabel() = default;

bool ElidedTextLabel::isCopyable() const
{
    return morvane::ui::ElidedTextCopyHandler::find(*this) != nullptr;
}

void ElidedTextLabel::setCopyable(bool on)
{
    morvane::ui::ElidedTextCopyHandler* const handler = morvane::ui::ElidedTextCopyHandler::find(*this);
    if (on && !handler) {
        new morvane::ui::ElidedTextCopyHandler(*this);
    } else if (!on && handler) {
        handler->remove();
    }
}

void ElidedTextLabel::paintEvent(QPaintEvent* event)
{
    QxtLabel::paintEvent(event);
    if (hasFocus() && isCopyable()) {
        QStylePainter painter(this);
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.rect = contentsRect();
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
    }
    ElidedTextUtil().updateToolTip(this, contentsRect().width(), text(), text());
}
