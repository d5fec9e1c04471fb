// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/WheelFilter_p.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QChildEvent>
#include <QComboBox>
#include <QWidget>

namespace morvane::ui {

namespace {

bool takesWheel(const QWidget& widget)
{
    return qobject_cast<const QAbstractSpinBox*>(&widget) || qobject_cast<const QComboBox*>(&widget);
}

bool containsFocus(const QWidget& widget)
{
    const QWidget* const focus = QApplication::focusWidget();
    return focus && (focus == &widget || widget.isAncestorOf(focus));
}

void keepFocusFromWheel(QWidget& widget)
{
    if (takesWheel(widget) && widget.focusPolicy() == Qt::WheelFocus) {
        widget.setFocusPolicy(Qt::StrongFocus);
    }
}

} // namespace

WheelFilter::WheelFilter(QWidget& form) : QObject(&form), m_form(form)
{
    watch(form);
}

WheelFilter::~WheelFilter() = default;

void WheelFilter::watch(QWidget& widget)
{
    widget.installEventFilter(this);
    keepFocusFromWheel(widget);
    if (takesWheel(widget)) {
        return;
    }
    for (QObject* const child : widget.children()) {
        if (auto* const childWidget = qobject_cast<QWidget*>(child)) {
            watch(*childWidget);
        }
    }
}

bool WheelFilter::isInForm(const QWidget& widget) const
{
    return &widget == &m_form || m_form.isAncestorOf(&widget);
}

bool WheelFilter::eventFilter(QObject* watched, QEvent* event)
{
    auto& widget = *static_cast<QWidget*>(watched);
    switch (event->type()) {
    case QEvent::Wheel:
        if (takesWheel(widget) && isInForm(widget) && !containsFocus(widget)) {
            event->ignore(); // then the parent gets it
            return true;
        }
        break;
    case QEvent::Polish: // by now its type is known
        if (isInForm(widget)) {
            keepFocusFromWheel(widget);
        }
        break;
    case QEvent::ChildAdded:
        if (auto* const child = qobject_cast<QWidget*>(static_cast<QChildEvent*>(event)->child())) {
            watch(*child);
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace morvane::ui
