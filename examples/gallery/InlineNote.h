#pragma once

#include <QWidget>

class QLabel;

namespace gallery {

/** A warning under the field that it is about. It keeps its place while it is empty, so that nothing jumps. */
class InlineNote : public QWidget
{
public:
    explicit InlineNote(QWidget* parent = nullptr);

    /** Shows @p text as it stands; an empty text shows nothing. */
    void setText(const QString& text);
    QString text() const;

private:
    QLabel* m_icon;
    QLabel* m_text;
};

} // namespace gallery
