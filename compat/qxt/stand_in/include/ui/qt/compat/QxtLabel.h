#pragma once

#include "ui/qt/MorvaneUiExport.h"

#include <QElapsedTimer>
#include <QFrame>

namespace morvane::compat {

/**
 * Stand-in for Qxt's label of the same name, with the members that Morvane uses: one line of text that is shortened
 * with an ellipsis where it does not fit.
 *
 * sizeHint() has room for the whole text, minimumSizeHint() for the ellipsis alone (for the whole text under
 * Qt::ElideNone), both with frame and margins and turned with the rotation. A text exactly as wide as the contents
 * rectangle fits. The text is plain: no markup, no mnemonics, line breaks count as blanks.
 *
 * The namespace keeps the two classes apart where a host links Qxt, too: for the linker, for QMetaObject and for
 * style sheets.
 */
class MORVANE_UI_EXPORT QxtLabel : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(Qt::Alignment alignment READ alignment WRITE setAlignment)
    Q_PROPERTY(Qt::TextElideMode elideMode READ elideMode WRITE setElideMode)
    Q_PROPERTY(Rotation rotation READ rotation WRITE setRotation)

public:
    /** How the text is turned, in degrees clockwise. */
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

    QString text() const { return m_text; }

    /** Where the text stands in the contents rectangle, before it is turned; Qt::AlignCenter initially. */
    Qt::Alignment alignment() const { return m_alignment; }
    void setAlignment(Qt::Alignment alignment);

    /** Where the ellipsis stands; Qt::ElideMiddle initially. Under Qt::ElideNone the text is cut off at the edge. */
    Qt::TextElideMode elideMode() const { return m_elideMode; }
    void setElideMode(Qt::TextElideMode mode);

    Rotation rotation() const { return m_rotation; }
    void setRotation(Rotation rotation);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /** Replaces the text; textChanged() follows unless it is the same. Empty shows the frame alone. */
    void setText(const QString& text);

Q_SIGNALS:
    /** Any mouse button was pressed and released again within the double-click interval. */
    void clicked();
    void textChanged(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    bool isOnItsSide() const { return m_rotation == Clockwise || m_rotation == CounterClockwise; }
    QSize sizeFor(const QString& text) const;
    void invalidateLayout();

    QString m_text;
    Qt::Alignment m_alignment = Qt::AlignCenter;
    Qt::TextElideMode m_elideMode = Qt::ElideMiddle;
    Rotation m_rotation = NoRotation;
    QElapsedTimer m_sincePress;
};

} // namespace morvane::compat
