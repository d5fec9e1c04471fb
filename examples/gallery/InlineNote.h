// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QLabel;

namespace gallery {

/**
 * A warning below the field that it belongs to. It keeps its space while it is empty, so the layout does not change.
 */
class InlineNote : public QWidget
{
public:
    explicit InlineNote(QWidget* parent = nullptr);

    /** Shows @p text as plain text. An empty text shows nothing. */
    void setText(const QString& text);
    QString text() const;

private:
    QLabel* m_icon;
    QLabel* m_text;
};

} // namespace gallery
