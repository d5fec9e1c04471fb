#include "ui/qt/compat/QxtLabel.h"

#include <QApplication>
#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

namespace morvane::compat {

QxtLabel::QxtLabel(QWidget* parent, Qt::WindowFlags flags) : QFrame(parent, flags) {}

QxtLabel::QxtLabel(const QString& text, QWidget* parent, Qt::WindowFlags flags) : QFrame(parent, flags), m_text(text) {}

QxtLabel::~QxtLabel() = default;

void QxtLabel::setText(const QString& text)
{
    if (m_text == text) {
        return;
    }
    m_text = text;
    invalidateLayout();
    Q_EMIT textChanged(m_text);
}

void QxtLabel::setAlignment(Qt::Alignment alignment)
{
    if (m_alignment != alignment) {
        m_alignment = alignment;
        update();
    }
}

void QxtLabel::setElideMode(Qt::TextElideMode mode)
{
    if (m_elideMode != mode) {
        m_elideMode = mode;
        invalidateLayout();
    }
}

void QxtLabel::setRotation(Rotation rotation)
{
    if (m_rotation != rotation) {
        m_rotation = rotation;
        invalidateLayout();
    }
}

QSize QxtLabel::sizeHint() const
{
    return sizeFor(m_text);
}

QSize QxtLabel::minimumSizeHint() const
{
    static const QString ellipsis(QChar(0x2026));
    return sizeFor(m_elideMode == Qt::ElideNone ? m_text : ellipsis);
}

QSize QxtLabel::sizeFor(const QString& text) const
{
    const QFontMetrics metrics = fontMetrics();
    const QSize size(metrics.horizontalAdvance(text), metrics.height());
    const QSize frameAndMargins = this->size() - contentsRect().size();
    return (isOnItsSide() ? size.transposed() : size) + frameAndMargins;
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
    const QSize room = isOnItsSide() ? contents.size().transposed() : contents.size();
    QPainter painter(this);
    painter.setClipRect(contents);
    painter.translate(QRectF(contents).center());
    painter.rotate(m_rotation);
    painter.translate(-room.width() / 2.0, -room.height() / 2.0);

    // The text engine compares fractions of a pixel, and would elide a text that is exactly as wide as its advance.
    const QFontMetrics metrics = painter.fontMetrics();
    const bool fits = metrics.horizontalAdvance(m_text) <= room.width();
    const QString shown = fits ? m_text : metrics.elidedText(m_text, m_elideMode, room.width());
    // The direction is that of the whole text, so the ellipsis is at the side where the text continues.
    const Qt::Alignment alignment = QStyle::visualAlignment(layoutDirection(), m_alignment) | Qt::AlignAbsolute;
    const int direction = m_text.isRightToLeft() ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
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
    m_sincePress.start();
}

void QxtLabel::mouseReleaseEvent(QMouseEvent* event)
{
    QFrame::mouseReleaseEvent(event);
    const bool isClick = m_sincePress.isValid() && m_sincePress.elapsed() < QApplication::doubleClickInterval();
    m_sincePress.invalidate();
    if (isClick) {
        Q_EMIT clicked();
    }
}

} // namespace morvane::compat
