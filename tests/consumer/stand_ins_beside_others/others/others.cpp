// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ctkCompleter.h"
#include "qxtlabel.h"

QxtLabel::QxtLabel(QWidget* parent, Qt::WindowFlags flags) : QFrame(parent, flags) {}
QxtLabel::QxtLabel(const QString& text, QWidget* parent, Qt::WindowFlags flags) : QFrame(parent, flags), m_text(text) {}
QxtLabel::~QxtLabel() = default;

QString QxtLabel::text() const
{
    return m_text;
}

void QxtLabel::setText(const QString& text)
{
    m_text = text;
}

QSize QxtLabel::sizeHint() const
{
    return {100 + int(m_ballast.front()), 20};
}

ctkCompleter::ctkCompleter(const QStringList& completions, QObject* parent) : QCompleter(completions, parent) {}
ctkCompleter::~ctkCompleter() = default;

void ctkCompleter::setModelFiltering(ModelFiltering filtering)
{
    m_ballast.back() = double(filtering);
    setFilterMode(filtering == FilterContains ? Qt::MatchContains : Qt::MatchStartsWith);
}
