// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFrame>

#include <array>

/** Has the name of Qxt's label and its functions that the program uses, but another layout and other virtual functions.
 */
class QxtLabel : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    enum Rotation : qint64
    {
        NoRotation
    };
    Q_ENUM(Rotation)

    explicit QxtLabel(QWidget* parent = nullptr, Qt::WindowFlags flags = {});
    explicit QxtLabel(const QString& text, QWidget* parent = nullptr, Qt::WindowFlags flags = {});
    ~QxtLabel() override;

    virtual QString text() const;
    virtual void setText(const QString& text);
    QSize sizeHint() const override;

private:
    std::array<double, 64> m_ballast = {};
    QString m_text;
};
