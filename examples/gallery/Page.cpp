// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "Page.h"

#include "Appearance.h"

#include <QLabel>
#include <QVBoxLayout>

namespace gallery {

Page::Page(const QString& name, const QString& title, const QString& sentence)
    : m_name(name), m_title(title), m_body(new QVBoxLayout)
{
    auto* const heading = new QLabel(title);
    heading->setFont(headingFont(heading->font()));
    heading->setTextFormat(Qt::PlainText);
    auto* const explanation = new QLabel(sentence);
    explanation->setTextFormat(Qt::PlainText);
    explanation->setWordWrap(true);

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 18, 24, 18);
    layout->setSpacing(6);
    layout->addWidget(heading);
    layout->addWidget(explanation);
    layout->addSpacing(12);
    layout->addLayout(m_body, 1);
    m_body->setSpacing(12);
}

} // namespace gallery
