#pragma once

#include <QWidget>

class QPlainTextEdit;
class QPushButton;

namespace gallery {

/** The lines that the library reported, each with its time. Text can be selected and copied. */
class LogPane : public QWidget
{
public:
    explicit LogPane(QWidget* parent = nullptr);

    void append(const QString& event);
    void clear();
    /** Everything on the clipboard. */
    void copyAll();
    /** The lines, oldest first, with their times. */
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
