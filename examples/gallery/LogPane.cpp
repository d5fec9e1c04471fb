// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "LogPane.h"

#include <QClipboard>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTime>
#include <QVBoxLayout>

namespace gallery {

namespace {

constexpr int maximumLines = 5000;

}

LogPane::LogPane(QWidget* parent)
    : QWidget(parent),
      m_lines(new QPlainTextEdit),
      m_copy(new QPushButton(tr("Cop&y All"))),
      m_clear(new QPushButton(tr("C&lear")))
{
    auto* const title = new QLabel(tr("&What the library reported"));
    title->setBuddy(m_lines);
    m_lines->setReadOnly(true);
    m_lines->setMaximumBlockCount(maximumLines);
    m_lines->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_lines->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_lines->setTabChangesFocus(true);
    m_lines->setMinimumHeight(4 * m_lines->fontMetrics().lineSpacing());

    auto* const header = new QHBoxLayout;
    header->addWidget(title, 1);
    header->addWidget(m_copy);
    header->addWidget(m_clear);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 6, 12, 12);
    layout->addLayout(header);
    layout->addWidget(m_lines, 1);

    connect(m_clear, &QPushButton::clicked, this, [this] { clear(); });
    connect(m_copy, &QPushButton::clicked, this, [this] { copyAll(); });
    updateButtons();
}

void LogPane::append(const QString& event)
{
    QString line = event;
    line.replace(QLatin1Char('\n'), QLatin1Char(' '));
    m_lines->appendPlainText(QTime::currentTime().toString(QStringLiteral("HH:mm:ss.zzz  ")) + line);
    updateButtons();
}

void LogPane::clear()
{
    m_lines->clear();
    updateButtons();
}

void LogPane::copyAll()
{
    QGuiApplication::clipboard()->setText(text());
}

QString LogPane::text() const
{
    return m_lines->toPlainText();
}

void LogPane::updateButtons()
{
    const bool any = !m_lines->document()->isEmpty();
    m_copy->setEnabled(any);
    m_clear->setEnabled(any);
}

} // namespace gallery
