// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/RefusalMark_p.h"

#include <QEvent>
#include <QLineEdit>
#include <QMetaObject>
#include <QStyle>

#include <utility>

namespace morvane::ui {

namespace {

constexpr int announcementDelay = 700; // milliseconds
constexpr int lookInterval = 200;      // milliseconds

/** A red with a contrast of at least 4.5 to any usual background of its kind. */
QColor refusalColour(const QColor& background)
{
    return background.lightness() > 127 ? QColor(0xa6, 0x00, 0x1a) : QColor(0xff, 0xa0, 0x9a);
}

void repolish(QWidget& widget)
{
    QStyle* const style = widget.style();
    style->unpolish(&widget);
    style->polish(&widget);
    widget.update();
}

} // namespace

RefusalMark::RefusalMark(QAbstractSpinBox* spinBox, QLineEdit* line, std::function<bool()> isAcceptable)
    : QObject(spinBox), m_spinBox(*spinBox), m_line(*line), m_isAcceptable(std::move(isAcceptable))
{
    m_announcement.setSingleShot(true);
    m_announcement.setInterval(announcementDelay);
    connect(&m_announcement, &QTimer::timeout, this, &RefusalMark::announce);
    // Nothing tells that the program has changed the range.
    m_look.setInterval(lookInterval);
    connect(&m_look, &QTimer::timeout, this, [this] {
        if (!isRefused()) {
            update();
        }
    });
}

RefusalMark::~RefusalMark() = default;

void RefusalMark::setEnabled(bool enabled)
{
    if (enabled == m_isEnabled) {
        return;
    }
    m_isEnabled = enabled;
    if (enabled) {
        connect(&m_line, &QLineEdit::textChanged, this, &RefusalMark::update);
        connect(&m_spinBox, &QAbstractSpinBox::editingFinished, this, &RefusalMark::update);
        m_line.installEventFilter(this);
    } else {
        disconnect(&m_line, nullptr, this, nullptr);
        disconnect(&m_spinBox, nullptr, this, nullptr);
        m_line.removeEventFilter(this);
    }
    update();
}

void RefusalMark::update()
{
    m_checkedText = m_line.text();
    const bool refused = isRefused();
    if (refused) {
        endAnnouncement();
        m_announcement.start();
    }
    if (refused != m_isMarked) {
        setMarked(refused);
    }
}

// A spin box blocks the signals of its line while it sets the text. The line is painted anyway.
bool RefusalMark::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Paint && (m_line.text() != m_checkedText || isRefused() != m_isMarked)) {
        QMetaObject::invokeMethod(this, &RefusalMark::update, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

void RefusalMark::setMarked(bool marked)
{
    m_isMarked = marked;
    if (marked) {
        // What the line inherits is not kept, because it may change meanwhile.
        m_palette = m_line.testAttribute(Qt::WA_SetPalette) ? m_line.palette() : QPalette();
        QPalette palette = m_palette;
        palette.setColor(QPalette::Text, refusalColour(m_line.palette().color(QPalette::Base)));
        m_line.setPalette(palette);
        m_look.start();
    } else {
        m_look.stop();
        m_line.setPalette(m_palette);
        endAnnouncement();
    }
    repolish(m_spinBox);
    repolish(m_line);
}

void RefusalMark::announce()
{
    m_description = m_spinBox.accessibleDescription();
    const QString refusal = tr("The text is not an acceptable number.");
    // Screen readers are told of the change.
    m_announced = m_description.isEmpty() ? refusal : refusal + QLatin1Char(' ') + m_description;
    m_spinBox.setAccessibleDescription(m_announced);
}

void RefusalMark::endAnnouncement()
{
    m_announcement.stop();
    const QString announced = std::exchange(m_announced, QString());
    if (!announced.isNull() && m_spinBox.accessibleDescription() == announced) { // not if the host has set another one
        m_spinBox.setAccessibleDescription(m_description);
    }
}

} // namespace morvane::ui
