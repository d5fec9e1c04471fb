// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QPlainTextEdit;
class QPushButton;

namespace gallery {

/** Shows the lines that the library reported, each with its time. The text can be selected and copied. */
class LogPane : public QWidget
{
public:
    explicit LogPane(QWidget* parent = nullptr);

    void append(const QString& event);
    void clear();
    /** Copies all lines to the clipboard. */
    void copyAll();
    /** Returns the lines with their times, oldest first. */
    QString text() const;

    QPushButton& clearButton() { return *m_clear; }
    QPushButton& copyButton() { return *m_copy; }

private:
    void updateButtons();

    QPlainTextEdit* m_lines;
    QPushButton* m_copy;
    QPushButton* m_clear;
};

} // namespace gallery
