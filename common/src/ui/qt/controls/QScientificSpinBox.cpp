// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/QScientificSpinBox.h"

#include "ui/qt/controls/NumberLineValidator_p.h"
#include "ui/qt/controls/ScientificNumberText_p.h"
#include "ui/qt/controls/StepSignals_p.h"
#include "ui/qt/controls/TypedNumber_p.h"
#include "ui/qt/controls/WheelNotches_p.h"
#include "ui/qt/util/GuiThread_p.h"

#include <QLineEdit>
#include <QLocale>
#include <QScopeGuard>
#include <QVariant>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace morvane::ui {

namespace {

constexpr int mostDigits = 12;
constexpr int initialDigits = 8;
constexpr int allDigits = 1000;

/** The text that was validated last by any spin box without ownValidation, and the result. */
struct ValidationCache
{
    QString cachedText;
    QVariant cachedValue;
    QValidator::State cachedState = QValidator::Invalid;
};

ValidationCache& validationCache()
{
    static ValidationCache cache;
    return cache;
}

QLocale english()
{
    return QLocale(QLocale::English, QLocale::UnitedStates);
}

QByteArray exactText(double number)
{
    return QLocale::c().toString(number, 'G', QLocale::FloatingPointShortest).toLatin1();
}

void setFromText(QScientificSpinBox& spinBox, void (QDoubleSpinBox::*set)(double), const QByteArray& text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (isNumber && std::isfinite(number)) {
        (spinBox.*set)(number);
    }
}

} // namespace

class QScientificSpinBoxPrivate
{
public:
    explicit QScientificSpinBoxPrivate(QScientificSpinBox* spinBox);

    double validateAndInterpret(const QString& input, int& pos, QValidator::State& state) const;

    QScientificSpinBox* q;
    int m_decimals = mostDigits;
    QChar m_delimiter = QLatin1Char('.');
    QChar m_groupSeparator = QLatin1Char(',');
    NumberLineValidator* m_validator;
    bool m_ownValidation = false;
    TypedText m_typed;
    WheelNotches m_wheel;

private:
    NumberRules rules() const;
};

QScientificSpinBoxPrivate::QScientificSpinBoxPrivate(QScientificSpinBox* spinBox)
    : q(spinBox), m_validator(new NumberLineValidator(spinBox))
{
    m_validator->setLocale(english());
    m_validator->setDecimals(allDigits);
    m_validator->setNotation(QDoubleValidator::ScientificNotation);
}

NumberRules QScientificSpinBoxPrivate::rules() const
{
    return {q->minimum(), q->maximum(), m_decimals, m_delimiter, m_groupSeparator, q->prefix(), q->suffix(),
        q->specialValueText()};
}

double QScientificSpinBoxPrivate::validateAndInterpret(const QString& input, int& pos, QValidator::State& state) const
{
    if (m_ownValidation) {
        const NumberInterpretation interpretation = interpretNumber(input, pos, rules());
        state = interpretation.state;
        return interpretation.value;
    }
    ValidationCache& cache = validationCache();
    if (!input.isEmpty() && input == cache.cachedText) {
        state = cache.cachedState;
        return cache.cachedValue.toDouble();
    }
    NumberInterpretation interpretation = interpretNumber(input, pos, rules());
    cache.cachedText = std::move(interpretation.text);
    cache.cachedValue.setValue(interpretation.value);
    cache.cachedState = interpretation.state;
    state = interpretation.state;
    return interpretation.value;
}

QScientificSpinBox::QScientificSpinBox(QWidget* parent)
    : QDoubleSpinBox(parent), m_private(new QScientificSpinBoxPrivate(this))
{
    expectGuiThread("QScientificSpinBox");
    // Set before all calls that update the text, because the validator of the base class would call validate() each
    // time.
    lineEdit()->setValidator(m_private->m_validator);
    m_private->m_validator->follow(*lineEdit());
    setLocale(english());
    QDoubleSpinBox::setDecimals(allDigits);
    m_private->m_decimals = initialDigits;
    setRange(std::numeric_limits<double>::lowest(), std::numeric_limits<double>::max());
    setKeyboardTracking(false);
    m_private->m_typed.follow(*this, *lineEdit(), QOverload<double>::of(&QDoubleSpinBox::valueChanged));
}

QScientificSpinBox::~QScientificSpinBox() = default;

int QScientificSpinBox::decimals() const
{
    return m_private->m_decimals;
}

void QScientificSpinBox::setDecimals(int digits)
{
    m_private->m_decimals = std::min(digits, mostDigits);
    // Updates the text and the size hints. Unlike setValue(), it does not round the value.
    setPrefix(prefix());
}

QByteArray QScientificSpinBox::minimumText() const
{
    return exactText(minimum());
}

void QScientificSpinBox::setMinimumText(const QByteArray& number)
{
    setFromText(*this, &QDoubleSpinBox::setMinimum, number);
}

QByteArray QScientificSpinBox::maximumText() const
{
    return exactText(maximum());
}

void QScientificSpinBox::setMaximumText(const QByteArray& number)
{
    setFromText(*this, &QDoubleSpinBox::setMaximum, number);
}

QByteArray QScientificSpinBox::singleStepText() const
{
    return exactText(singleStep());
}

void QScientificSpinBox::setSingleStepText(const QByteArray& number)
{
    setFromText(*this, &QDoubleSpinBox::setSingleStep, number);
}

QByteArray QScientificSpinBox::valueText() const
{
    return exactText(value());
}

void QScientificSpinBox::setValueText(const QByteArray& number)
{
    setFromText(*this, &QDoubleSpinBox::setValue, number);
}

bool QScientificSpinBox::hasOwnValidation() const
{
    return m_private->m_ownValidation;
}

void QScientificSpinBox::setOwnValidation(bool own)
{
    m_private->m_ownValidation = own;
}

QString QScientificSpinBox::textFromValue(double value) const
{
    return scientificText(value, m_private->m_decimals);
}

double QScientificSpinBox::valueFromText(const QString& text) const
{
    int pos = lineEdit()->cursorPosition();
    QValidator::State state = QValidator::Acceptable;
    return m_private->validateAndInterpret(text, pos, state);
}

QValidator::State QScientificSpinBox::validate(QString& input, int& pos) const
{
    QValidator::State state = QValidator::Acceptable;
    m_private->validateAndInterpret(input, pos, state);
    return state;
}

void QScientificSpinBox::fixup(QString& input) const
{
    if (!m_private->m_ownValidation) {
        QDoubleSpinBox::fixup(input);
    }
}

void QScientificSpinBox::stepBy(int steps)
{
    if (!handStepToHost(steps, signalIncrement, signalDecrement)) {
        setValue(value() + singleStep() * steps);
    }
    selectAll();
}

bool QScientificSpinBox::event(QEvent* event)
{
    if (endsTurn(*event)) {
        m_private->m_wheel.forgetPart();
    }
    return QDoubleSpinBox::event(event);
}

void QScientificSpinBox::wheelEvent(QWheelEvent* event)
{
    event->accept();
    if (const int notches = m_private->m_wheel.add(*event)) {
        QWheelEvent turn = turnBy(notches, *event);
        QDoubleSpinBox::wheelEvent(&turn);
    }
}

double QScientificSpinBox::enteredValue() const
{
    if (!m_private->m_typed.isShownBy(*lineEdit())) {
        return value();
    }
    const auto keepAnswer = qScopeGuard([before = validationCache()] { validationCache() = before; });
    return valueOnReturn(*this, *lineEdit(), [this](const QString& text) { return valueFromText(text); });
}

void QScientificSpinBox::signalIncrementConnected() const {}

void QScientificSpinBox::signalDecrementConnected() const {}

} // namespace morvane::ui
