// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QWidget;

namespace morvane::ui {

/** Keeps the wheel from the spin boxes and combo boxes of a form that do not have the focus. A child of the form. */
class WheelFilter : public QObject
{
    Q_OBJECT

public:
    explicit WheelFilter(QWidget& form);
    ~WheelFilter() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void watch(QWidget& widget);
    bool isInForm(const QWidget& widget) const;

    QWidget& m_form;
};

} // namespace morvane::ui
