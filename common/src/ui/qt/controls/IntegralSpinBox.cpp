// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/IntegralSpinBox.h"

#include "ui/qt/controls/RefusalMark_p.h"
#include "ui/qt/controls/StepSignals_p.h"
#include "ui/qt/controls/TypedNumber_p.h"
#include "ui/qt/controls/WheelNotches_p.h"
#include "ui/qt/util/GuiThread_p.h"

#include <QLineEdit>

namespace morvane::ui {

class IntegralSpinBoxPrivate
{
public:
    TypedText m_typed;
    WheelNotches m_wheel;
    RefusalMark* m_refusal = nullptr;
};

IntegralSpinBox::IntegralSpinBox(QWidget* parent)
    : QSpinBox(parent), m_private(std::make_unique<IntegralSpinBoxPrivate>())
{
    expectGuiThread("IntegralSpinBox");
    setKeyboardTracking(false);
    m_private->m_typed.follow(*this, *lineEdit(), QOverload<int>::of(&QSpinBox::valueChanged));
    m_private->m_refusal = new RefusalMark(this, lineEdit(), [this] {
        QString text = lineEdit()->displayText();
        int pos = lineEdit()->cursorPosition();
        return validate(text, pos) == QValidator::Acceptable;
    });
}

IntegralSpinBox::~IntegralSpinBox() = default;

bool IntegralSpinBox::isRefusalShown() const
{
    return m_private->m_refusal->isEnabled();
}

void IntegralSpinBox::setRefusalShown(bool shown)
{
    m_private->m_refusal->setEnabled(shown);
}

bool IntegralSpinBox::isTextRefused() const
{
    return m_private->m_refusal->isRefused();
}

void IntegralSpinBox::stepBy(int steps)
{
    if (!handStepToHost(steps, signalIncrement, signalDecrement)) {
        const qint64 stepped = value() + static_cast<qint64>(singleStep()) * steps;
        setValue(static_cast<int>(static_cast<quint32>(stepped)));
    }
    selectAll();
}

bool IntegralSpinBox::event(QEvent* event)
{
    if (endsTurn(*event)) {
        m_private->m_wheel.forgetPart();
    }
    return QSpinBox::event(event);
}

void IntegralSpinBox::wheelEvent(QWheelEvent* event)
{
    event->accept();
    if (const int notches = m_private->m_wheel.add(*event)) {
        QWheelEvent turn = turnBy(notches, *event);
        QSpinBox::wheelEvent(&turn);
    }
}

int IntegralSpinBox::enteredValue() const
{
    if (!m_private->m_typed.isShownBy(*lineEdit())) {
        return value();
    }
    return valueOnReturn(*this, *lineEdit(), [this](const QString& text) { return valueFromText(text); });
}

void IntegralSpinBox::signalIncrementConnected() const {}

void IntegralSpinBox::signalDecrementConnected() const {}

} // namespace morvane::ui
