// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/MorvaneUiExport.h"

#include <QFrame>

#include <memory>

namespace morvane::compat {

/**
 * Stand-in for Qxt's label of the same name. Has the members that Morvane uses: one line of text, which is elided if it
 * does not fit.
 *
 * sizeHint() has space for the whole text. minimumSizeHint() has space for the ellipsis only, or for the whole text
 * with Qt::ElideNone. Both include frame and margins, and follow the rotation. A text exactly as wide as the contents
 * rectangle fits. The text is plain text: no markup, no mnemonics; line breaks count as blanks.
 *
 * The namespace distinguishes the two classes if a host links Qxt, too: for the linker, for QMetaObject and for style
 * sheets.
 */
class MORVANE_UI_EXPORT QxtLabel : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(Qt::Alignment alignment READ alignment WRITE setAlignment)
    Q_PROPERTY(Qt::TextElideMode elideMode READ elideMode WRITE setElideMode)
    Q_PROPERTY(Rotation rotation READ rotation WRITE setRotation)

public:
    /** The rotation of the text, in degrees clockwise. */
    enum Rotation
    {
        NoRotation = 0,
        Clockwise = 90,
        UpsideDown = 180,
        CounterClockwise = 270
    };
    Q_ENUM(Rotation)

    explicit QxtLabel(QWidget* parent = nullptr, Qt::WindowFlags flags = {});
    explicit QxtLabel(const QString& text, QWidget* parent = nullptr, Qt::WindowFlags flags = {});
    ~QxtLabel() override;

    QString text() const;

    /** The alignment of the text in the contents rectangle, before the rotation; Qt::AlignCenter initially. */
    Qt::Alignment alignment() const;
    void setAlignment(Qt::Alignment alignment);

    /** The position of the ellipsis; Qt::ElideMiddle initially. With Qt::ElideNone the text is clipped at the edge. */
    Qt::TextElideMode elideMode() const;
    void setElideMode(Qt::TextElideMode mode);

    Rotation rotation() const;
    void setRotation(Rotation rotation);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /** Sets the text. Emits textChanged() if the text is different. With an empty text only the frame is shown. */
    void setText(const QString& text);

Q_SIGNALS:
    /** Emitted when any mouse button was pressed and released within the double-click interval. */
    void clicked();
    void textChanged(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    struct Impl;

    QSize sizeFor(const QString& text) const;
    void invalidateLayout();

    std::unique_ptr<Impl> m_impl;
};

} // namespace morvane::compat
