// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/compat/QxtLabel.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

namespace morvane::compat {

struct QxtLabel::Impl
{
    bool isOnItsSide() const { return rotation == Clockwise || rotation == CounterClockwise; }

    QString text;
    Qt::Alignment alignment = Qt::AlignCenter;
    Qt::TextElideMode elideMode = Qt::ElideMiddle;
    Rotation rotation = NoRotation;
    QElapsedTimer sincePress;
};

QxtLabel::QxtLabel(QWidget* parent, Qt::WindowFlags flags) : QxtLabel(QString(), parent, flags) {}

QxtLabel::QxtLabel(const QString& text, QWidget* parent, Qt::WindowFlags flags)
    : QFrame(parent, flags), m_impl(std::make_unique<Impl>())
{
    m_impl->text = text;
}

QxtLabel::~QxtLabel() = default;

QString QxtLabel::text() const
{
    return m_impl->text;
}

Qt::Alignment QxtLabel::alignment() const
{
    return m_impl->alignment;
}

Qt::TextElideMode QxtLabel::elideMode() const
{
    return m_impl->elideMode;
}

QxtLabel::Rotation QxtLabel::rotation() const
{
    return m_impl->rotation;
}

void QxtLabel::setText(const QString& text)
{
    if (m_impl->text == text) {
        return;
    }
    m_impl->text = text;
    invalidateLayout();
    Q_EMIT textChanged(m_impl->text);
}

void QxtLabel::setAlignment(Qt::Alignment alignment)
{
    if (m_impl->alignment != alignment) {
        m_impl->alignment = alignment;
        update();
    }
}

void QxtLabel::setElideMode(Qt::TextElideMode mode)
{
    if (m_impl->elideMode != mode) {
        m_impl->elideMode = mode;
        invalidateLayout();
    }
}

void QxtLabel::setRotation(Rotation rotation)
{
    if (m_impl->rotation != rotation) {
        m_impl->rotation = rotation;
        invalidateLayout();
    }
}

QSize QxtLabel::sizeHint() const
{
    return sizeFor(m_impl->text);
}

QSize QxtLabel::minimumSizeHint() const
{
    static const QString ellipsis(QChar(0x2026));
    return sizeFor(m_impl->elideMode == Qt::ElideNone ? m_impl->text : ellipsis);
}

QSize QxtLabel::sizeFor(const QString& text) const
{
    const QFontMetrics metrics = fontMetrics();
    const QSize size(metrics.horizontalAdvance(text), metrics.height());
    const QSize frameAndMargins = this->size() - contentsRect().size();
    return (m_impl->isOnItsSide() ? size.transposed() : size) + frameAndMargins;
}

void QxtLabel::invalidateLayout()
{
    updateGeometry();
    update();
}

void QxtLabel::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);

    const QRect contents = contentsRect();
    const QSize room = m_impl->isOnItsSide() ? contents.size().transposed() : contents.size();
    QPainter painter(this);
    painter.setClipRect(contents);
    painter.translate(QRectF(contents).center());
    painter.rotate(m_impl->rotation);
    painter.translate(-room.width() / 2.0, -room.height() / 2.0);

    // The text engine compares fractions of a pixel, and would elide a text that is exactly as wide as its advance.
    const QFontMetrics metrics = painter.fontMetrics();
    const bool fits = metrics.horizontalAdvance(m_impl->text) <= room.width();
    const QString shown = fits ? m_impl->text : metrics.elidedText(m_impl->text, m_impl->elideMode, room.width());
    // The direction is that of the whole text, so the ellipsis is at the side where the text continues.
    const Qt::Alignment alignment = QStyle::visualAlignment(layoutDirection(), m_impl->alignment) | Qt::AlignAbsolute;
    const int direction = m_impl->text.isRightToLeft() ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
    painter.drawText(
        QRect(QPoint(0, 0), room), int(alignment) | direction | Qt::TextSingleLine | Qt::TextDontClip, shown);
}

void QxtLabel::changeEvent(QEvent* event)
{
    // QFrame handles changes of the font and the style.
    if (event->type() == QEvent::LayoutDirectionChange) {
        update();
    }
    QFrame::changeEvent(event);
}

void QxtLabel::mousePressEvent(QMouseEvent* event)
{
    QFrame::mousePressEvent(event);
    m_impl->sincePress.start();
}

void QxtLabel::mouseReleaseEvent(QMouseEvent* event)
{
    QFrame::mouseReleaseEvent(event);
    const bool isClick =
        m_impl->sincePress.isValid() && m_impl->sincePress.elapsed() < QApplication::doubleClickInterval();
    m_impl->sincePress.invalidate();
    if (isClick) {
        Q_EMIT clicked();
    }
}

} // namespace morvane::compat
