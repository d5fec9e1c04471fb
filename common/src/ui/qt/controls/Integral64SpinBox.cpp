// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/Integral64SpinBox.h"

#include "ui/qt/controls/IntegerLineValidator_p.h"
#include "ui/qt/controls/IntegerText_p.h"
#include "ui/qt/controls/RefusalMark_p.h"
#include "ui/qt/controls/StepSignals_p.h"
#include "ui/qt/controls/TypedNumber_p.h"
#include "ui/qt/controls/WheelNotches_p.h"
#include "ui/qt/util/GuiThread_p.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionSpinBox>

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace morvane::ui {

namespace {

using Limits = std::numeric_limits<qint64>;

/** How far it is up to `to`, which is not below `from`. */
quint64 distance(qint64 from, qint64 to)
{
    const bool fits = from >= 0 || to < 0;
    return fits ? static_cast<quint64>(to - from) : static_cast<quint64>(to) + static_cast<quint64>(-(from + 1)) + 1;
}

/** `value + step * steps`, limited to 64 bits. The step is not negative. */
qint64 stepped(qint64 value, qint64 step, int steps)
{
    constexpr auto most = static_cast<quint64>(Limits::max());
    const auto count = static_cast<quint64>(qAbs(static_cast<qint64>(steps)));
    const quint64 room = steps < 0 ? distance(Limits::min(), value) : distance(value, Limits::max());
    if (step != 0 && count > room / static_cast<quint64>(step)) {
        return steps < 0 ? Limits::min() : Limits::max();
    }
    for (quint64 rest = count * static_cast<quint64>(step); rest > 0;) {
        const quint64 part = std::min(rest, most); // the whole may be more than a signed number holds
        value += steps < 0 ? -static_cast<qint64>(part) : static_cast<qint64>(part);
        rest -= part;
    }
    return value;
}

} // namespace

class Integral64SpinBoxPrivate
{
public:
    explicit Integral64SpinBoxPrivate(Integral64SpinBox* spinBox);

    QString numberIn(const QString& text) const;
    qint64 bound(qint64 number) const;
    void setLimits(qint64 minimum, qint64 maximum);
    void setValue(qint64 number, bool keepsText);
    void showValue();
    void applyStyle();
    void commit();
    void trackTyping();
    void selectNumber();
    QSize sizeFor(int height) const;
    QLineEdit& line() const { return *q->lineEdit(); }

    Integral64SpinBox* q;
    IntegerLineValidator* m_validator;
    IntegerStyle m_style;
    QString m_prefix;
    QString m_suffix;
    qint64 m_value = 0;
    qint64 m_minimum = 0;
    qint64 m_maximum = 99;
    qint64 m_singleStep = 1;
    WheelNotches m_wheel;
    RefusalMark* m_refusal = nullptr;
};

Integral64SpinBoxPrivate::Integral64SpinBoxPrivate(Integral64SpinBox* spinBox)
    : q(spinBox), m_validator(new IntegerLineValidator(spinBox))
{
}

QString Integral64SpinBoxPrivate::numberIn(const QString& text) const
{
    QString number = text;
    if (!m_prefix.isEmpty() && number.startsWith(m_prefix)) {
        number.remove(0, m_prefix.size());
    }
    if (!m_suffix.isEmpty() && number.endsWith(m_suffix)) {
        number.chop(m_suffix.size());
    }
    return number.trimmed();
}

qint64 Integral64SpinBoxPrivate::bound(qint64 number) const
{
    if (number < m_minimum) {
        return q->wrapping() ? m_maximum : m_minimum;
    }
    if (number > m_maximum) {
        return q->wrapping() ? m_minimum : m_maximum;
    }
    return number;
}

void Integral64SpinBoxPrivate::setLimits(qint64 minimum, qint64 maximum)
{
    m_minimum = minimum;
    m_maximum = maximum;
    const qint64 limited = qBound(m_minimum, m_value, m_maximum);
    if (limited != m_value || (limited == m_minimum && !q->specialValueText().isEmpty())) {
        setValue(limited, false);
    }
    q->updateGeometry();
}

void Integral64SpinBoxPrivate::setValue(qint64 number, bool keepsText)
{
    const bool changes = number != m_value;
    m_value = number;
    if (!keepsText) {
        showValue();
    }
    q->update();
    if (changes) {
        Q_EMIT q->valueChanged(number);
        Q_EMIT q->textChanged(q->text());
    }
}

void Integral64SpinBoxPrivate::showValue()
{
    const bool isSpecial = m_value == m_minimum && !q->specialValueText().isEmpty();
    const QString shown = isSpecial ? q->specialValueText() : m_prefix + q->textFromValue(m_value) + m_suffix;
    if (shown != line().text()) {
        const int cursor = line().cursorPosition();
        line().setText(shown);
        line().setCursorPosition(cursor);
    }
}

void Integral64SpinBoxPrivate::applyStyle()
{
    m_validator->setStyle(m_style);
    showValue();
    q->updateGeometry();
}

void Integral64SpinBoxPrivate::commit()
{
    const bool wasSelected = line().hasSelectedText();
    setValue(valueOnReturn(*q, line(), [this](const QString& text) { return q->valueFromText(text); }), false);
    if (wasSelected) {
        selectNumber();
    }
}

void Integral64SpinBoxPrivate::trackTyping()
{
    QString text = line().text();
    int pos = line().cursorPosition();
    if (q->keyboardTracking() && q->validate(text, pos) == QValidator::Acceptable) {
        setValue(q->valueFromText(text), true);
    }
    q->update(); // the typed number decides which of the buttons are enabled
}

void Integral64SpinBoxPrivate::selectNumber()
{
    const auto end = static_cast<int>(line().text().size() - m_suffix.size());
    const auto start = static_cast<int>(m_prefix.size());
    if (line().text() == q->specialValueText() || end < start) {
        line().selectAll();
    } else {
        line().setSelection(end, start - end); // as Qt's spin boxes, with the cursor at the start
    }
}

QSize Integral64SpinBoxPrivate::sizeFor(int height) const
{
    constexpr int mostCharacters = 26; // all decimal numbers in groups; Qt's spin boxes measure 18
    const QFontMetrics metrics = q->fontMetrics();
    int width = metrics.horizontalAdvance(q->specialValueText());
    for (const qint64 limit : {m_minimum, m_maximum}) {
        const QString text = m_prefix + q->textFromValue(limit).left(mostCharacters) + m_suffix + QLatin1Char(' ');
        width = std::max(width, metrics.horizontalAdvance(text));
    }
    QStyleOptionSpinBox option;
    q->initStyleOption(&option);
    return q->style()->sizeFromContents(QStyle::CT_SpinBox, &option, QSize(width + 2, height), q);
}

Integral64SpinBox::Integral64SpinBox(QWidget* parent)
    : QAbstractSpinBox(parent), m_private(std::make_unique<Integral64SpinBoxPrivate>(this))
{
    expectGuiThread("Integral64SpinBox");
    setKeyboardTracking(false);
    lineEdit()->setValidator(m_private->m_validator);
    m_private->m_validator->follow(*lineEdit());
    m_private->showValue();
    connect(this, &QAbstractSpinBox::editingFinished, this, [this] { m_private->commit(); });
    connect(lineEdit(), &QLineEdit::textEdited, this, [this] { m_private->trackTyping(); });
    m_private->m_refusal = new RefusalMark(this, lineEdit(), [this] {
        QString text = lineEdit()->displayText();
        int pos = lineEdit()->cursorPosition();
        return validate(text, pos) == QValidator::Acceptable;
    });
}

Integral64SpinBox::~Integral64SpinBox() = default;

qint64 Integral64SpinBox::value() const
{
    return m_private->m_value;
}

void Integral64SpinBox::setValue(qint64 value)
{
    m_private->setValue(m_private->bound(value), false);
}

qint64 Integral64SpinBox::minimum() const
{
    return m_private->m_minimum;
}

void Integral64SpinBox::setMinimum(qint64 minimum)
{
    m_private->setLimits(minimum, std::max(minimum, m_private->m_maximum));
}

qint64 Integral64SpinBox::maximum() const
{
    return m_private->m_maximum;
}

void Integral64SpinBox::setMaximum(qint64 maximum)
{
    m_private->setLimits(std::min(maximum, m_private->m_minimum), maximum);
}

void Integral64SpinBox::setRange(qint64 minimum, qint64 maximum)
{
    m_private->setLimits(minimum, std::max(minimum, maximum));
}

qint64 Integral64SpinBox::singleStep() const
{
    return m_private->m_singleStep;
}

void Integral64SpinBox::setSingleStep(qint64 step)
{
    if (step >= 0) {
        m_private->m_singleStep = step;
    }
}

QString Integral64SpinBox::prefix() const
{
    return m_private->m_prefix;
}

void Integral64SpinBox::setPrefix(const QString& prefix)
{
    m_private->m_prefix = prefix;
    m_private->applyStyle();
}

QString Integral64SpinBox::suffix() const
{
    return m_private->m_suffix;
}

void Integral64SpinBox::setSuffix(const QString& suffix)
{
    m_private->m_suffix = suffix;
    m_private->applyStyle();
}

void Integral64SpinBox::setSpecialValueText(const QString& text)
{
    QAbstractSpinBox::setSpecialValueText(text);
    m_private->applyStyle();
}

QString Integral64SpinBox::cleanText() const
{
    return m_private->numberIn(text());
}

Integral64SpinBox::Base Integral64SpinBox::base() const
{
    return static_cast<Base>(m_private->m_style.base);
}

void Integral64SpinBox::setBase(Base base)
{
    if (base == Binary || base == Octal || base == Decimal || base == Hexadecimal) {
        m_private->m_style.base = base;
        m_private->applyStyle();
    }
}

QString Integral64SpinBox::groupSeparator() const
{
    return m_private->m_style.groupSeparator;
}

void Integral64SpinBox::setGroupSeparator(const QString& separator)
{
    const bool looksLikeNumber = std::any_of(separator.begin(), separator.end(), [](QChar character) {
        return character.isLetterOrNumber() || character == QLatin1Char('-') || character == QChar(0x2212);
    });
    if (!looksLikeNumber) {
        m_private->m_style.groupSeparator = separator;
        m_private->applyStyle();
    }
}

bool Integral64SpinBox::isRefusalShown() const
{
    return m_private->m_refusal->isEnabled();
}

void Integral64SpinBox::setRefusalShown(bool shown)
{
    m_private->m_refusal->setEnabled(shown);
}

bool Integral64SpinBox::isTextRefused() const
{
    return m_private->m_refusal->isRefused();
}

QString Integral64SpinBox::textFromValue(qint64 value) const
{
    return integerText(value, m_private->m_style);
}

qint64 Integral64SpinBox::valueFromText(const QString& text) const
{
    if (!text.isEmpty() && text == specialValueText()) {
        return m_private->m_minimum;
    }
    return readInteger(m_private->numberIn(text), m_private->m_style).value;
}

void Integral64SpinBox::interpretText()
{
    m_private->commit();
}

QValidator::State Integral64SpinBox::validate(QString& input, int& /*pos*/) const
{
    if (!input.isEmpty() && input == specialValueText()) {
        return QValidator::Acceptable;
    }
    const QString number = m_private->numberIn(input);
    const bool hasMinus = number.startsWith(QLatin1Char('-')) || number.startsWith(QChar(0x2212));
    if (hasMinus && m_private->m_minimum >= 0) {
        return QValidator::Invalid;
    }
    const IntegerReading reading = readInteger(number, m_private->m_style);
    if (reading.state != QValidator::Acceptable) {
        return reading.state;
    }
    if (m_private->m_minimum <= reading.value && reading.value <= m_private->m_maximum) {
        return QValidator::Acceptable;
    }
    const bool isBeyond =
        reading.value >= 0 ? reading.value > m_private->m_maximum : reading.value < m_private->m_minimum;
    return isBeyond || m_private->m_minimum == m_private->m_maximum ? QValidator::Invalid : QValidator::Intermediate;
}

void Integral64SpinBox::stepBy(int steps)
{
    if (!handStepToHost(steps, signalIncrement, signalDecrement)) {
        const qint64 from = enteredValue();
        setValue(stepped(from, m_private->m_singleStep, steps));
    }
    m_private->selectNumber();
}

QSize Integral64SpinBox::sizeHint() const
{
    ensurePolished();
    return m_private->sizeFor(lineEdit()->sizeHint().height());
}

QSize Integral64SpinBox::minimumSizeHint() const
{
    ensurePolished();
    return m_private->sizeFor(lineEdit()->minimumSizeHint().height());
}

QAbstractSpinBox::StepEnabled Integral64SpinBox::stepEnabled() const
{
    if (isReadOnly()) {
        return StepNone;
    }
    const qint64 from = enteredValue();
    StepEnabled enabled = StepNone;
    enabled.setFlag(StepUpEnabled, wrapping() || from < m_private->m_maximum);
    enabled.setFlag(StepDownEnabled, wrapping() || from > m_private->m_minimum);
    return enabled;
}

bool Integral64SpinBox::event(QEvent* event)
{
    if (endsTurn(*event)) {
        m_private->m_wheel.forgetPart();
    }
    return QAbstractSpinBox::event(event);
}

void Integral64SpinBox::wheelEvent(QWheelEvent* event)
{
    event->accept();
    if (const int notches = m_private->m_wheel.add(*event)) {
        QWheelEvent turn = turnBy(notches, *event);
        QAbstractSpinBox::wheelEvent(&turn);
    }
}

void Integral64SpinBox::keyPressEvent(QKeyEvent* event)
{
    if (event == QKeySequence::SelectAll) {
        m_private->selectNumber();
        event->accept();
        return;
    }
    QAbstractSpinBox::keyPressEvent(event);
}

void Integral64SpinBox::focusInEvent(QFocusEvent* event)
{
    QAbstractSpinBox::focusInEvent(event);
    // Item views select the text of Qt's own spin boxes when they open an editor.
    const QWidget* const parent = parentWidget();
    const bool isCellEditor = parent && qobject_cast<const QAbstractItemView*>(parent->parentWidget());
    if (lineEdit()->hasSelectedText() || (isCellEditor && event->reason() == Qt::OtherFocusReason)) {
        m_private->selectNumber();
    }
}

qint64 Integral64SpinBox::enteredValue() const
{
    return valueOnReturn(*this, *lineEdit(), [this](const QString& text) { return valueFromText(text); });
}

void Integral64SpinBox::signalIncrementConnected() const {}

void Integral64SpinBox::signalDecrementConnected() const {}

} // namespace morvane::ui
