// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "InlineNote.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>

namespace gallery {

InlineNote::InlineNote(QWidget* parent) : QWidget(parent), m_icon(new QLabel), m_text(new QLabel)
{
    const int side = fontMetrics().height();
    m_icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(side, side));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_icon);
    layout->addWidget(m_text, 1);

    QSizePolicy policy = m_icon->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_icon->setSizePolicy(policy);
    m_icon->hide();
}

void InlineNote::setText(const QString& text)
{
    m_text->setText(text);
    m_text->setAccessibleName(text);
    m_icon->setVisible(!text.isEmpty());
}

QString InlineNote::text() const
{
    return m_text->text();
}

} // namespace gallery
