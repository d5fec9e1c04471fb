// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/QScientificSpinBox.h"

#include "ui/qt/controls/NumberLineValidator_p.h"
#include "ui/qt/controls/NumberStep_p.h"
#include "ui/qt/controls/RefusalMark_p.h"
#include "ui/qt/controls/ScientificNumberText_p.h"
#include "ui/qt/controls/StepSignals_p.h"
#include "ui/qt/controls/StyledLineValidator_p.h"
#include "ui/qt/controls/StyledNumber_p.h"
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
#include <optional>
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
    const NumberStyle& style() const;
    void applyStyle();
    bool isReadAsInitially() const;
    bool isTextAcceptable() const;
    void stepByMode(int steps);
    QLineEdit& line() const;

    QScientificSpinBox* q;
    int m_decimals = mostDigits;
    QChar m_delimiter = QLatin1Char('.');
    QChar m_groupSeparator = QLatin1Char(',');
    NumberLineValidator* m_validator;
    bool m_ownValidation = false;
    QScientificSpinBox::Notation m_notation = QScientificSpinBox::Scientific;
    QScientificSpinBox::StepMode m_stepMode = QScientificSpinBox::Linear;
    QLocale m_numberLocale = QLocale::c();
    bool m_hasLanguage = false; ///< whether that is not the C locale
    QString m_suffix;           ///< as it was set
    StyledLineValidator* m_styledValidator;
    RefusalMark* m_refusal = nullptr;
    TypedText m_typed;
    WheelNotches m_wheel;

private:
    /** The place that the last step changed, as long as the line is as it left it. */
    struct SteppedPlace
    {
        int place = 0;
        int cursor = 0;
        QString line;
    };

    NumberRules rules() const;
    double interpretStyled(const QString& input, QValidator::State& state) const;
    double steppedValue(double from, int steps) const;
    void stepPlace(int steps);
    std::optional<int> placeAtCursor() const;

    mutable NumberStyle m_style;
    SteppedPlace m_steppedPlace;
};

QScientificSpinBoxPrivate::QScientificSpinBoxPrivate(QScientificSpinBox* spinBox)
    : q(spinBox),
      m_validator(new NumberLineValidator(spinBox)),
      m_styledValidator(new StyledLineValidator(spinBox, [this]() -> const NumberStyle& { return style(); }))
{
    m_validator->setLocale(english());
    m_validator->setDecimals(allDigits);
    m_validator->setNotation(QDoubleValidator::ScientificNotation);
}

NumberRules QScientificSpinBoxPrivate::rules() const
{
    return {q->minimum(), q->maximum(), m_decimals, m_delimiter, m_groupSeparator, q->prefix(),
        q->QDoubleSpinBox::suffix(), q->specialValueText()};
}

QLineEdit& QScientificSpinBoxPrivate::line() const
{
    return *q->lineEdit();
}

/** How numbers are written at the moment. What the base class stores is asked anew each time. */
const NumberStyle& QScientificSpinBoxPrivate::style() const
{
    m_style.digits = m_decimals;
    m_style.unit = q->QDoubleSpinBox::suffix().trimmed();
    m_style.hasGroups = m_hasLanguage && q->isGroupSeparatorShown();
    return m_style;
}

/** After a change of the notation or the language. */
void QScientificSpinBoxPrivate::applyStyle()
{
    m_style.notation = static_cast<NumberNotation>(m_notation);
    m_hasLanguage = m_numberLocale != QLocale::c();
    m_style.signs = m_hasLanguage ? signsOf(m_numberLocale) : NumberSigns();
    m_styledValidator->setTakesForeignNumbers(m_hasLanguage);
    const bool initially = isReadAsInitially();
    line().setValidator(initially ? static_cast<QValidator*>(m_validator) : m_styledValidator);
    // Updates the text and the size hints, too.
    q->QDoubleSpinBox::setSuffix(m_notation == QScientificSpinBox::SiPrefix ? m_suffix.trimmed() : m_suffix);
    m_styledValidator->begin(line().text());
}

bool QScientificSpinBoxPrivate::isReadAsInitially() const
{
    return m_notation != QScientificSpinBox::SiPrefix && !m_hasLanguage;
}

double QScientificSpinBoxPrivate::interpretStyled(const QString& input, QValidator::State& state) const
{
    const double minimum = q->minimum();
    const double maximum = q->maximum();
    if (!input.isEmpty() && input == q->specialValueText()) {
        state = QValidator::Acceptable;
        return minimum;
    }
    const bool hasPrefix = input.startsWith(q->prefix());
    const StyledReading reading = readStyledNumber(hasPrefix ? input.mid(q->prefix().size()) : input, style());
    state = reading.state;
    if (state == QValidator::Acceptable && m_styledValidator->isAmbiguous(input)) {
        state = QValidator::Intermediate;
    } else if (state == QValidator::Acceptable && (reading.value < minimum || reading.value > maximum)) {
        const bool mayShrink = reading.value > maximum ? maximum > 0 : minimum < 0;
        const bool mayGrow =
            reading.value < minimum ? minimum > 0 && reading.value >= 0 : maximum < 0 && reading.value <= 0;
        state = mayShrink || mayGrow ? QValidator::Intermediate : QValidator::Invalid;
    }
    return state == QValidator::Acceptable ? reading.value : maximum > 0 ? minimum : maximum;
}

bool QScientificSpinBoxPrivate::isTextAcceptable() const
{
    const auto keepAnswer = qScopeGuard([before = validationCache()] { validationCache() = before; });
    QString text = line().displayText();
    int pos = line().cursorPosition();
    return q->validate(text, pos) == QValidator::Acceptable;
}

void QScientificSpinBoxPrivate::stepByMode(int steps)
{
    if (m_stepMode == QScientificSpinBox::LastDigit) {
        stepPlace(steps);
        return;
    }
    if (m_typed.isShownBy(line())) {
        q->interpretText();
    }
    q->setValue(steppedValue(q->value(), steps));
    q->selectAll();
}

double QScientificSpinBoxPrivate::steppedValue(double from, int steps) const
{
    if (from >= 0 && from <= 0 && steps != 0) {
        from = steps > 0 ? q->singleStep() : -q->singleStep();
        steps -= steps > 0 ? 1 : -1;
    }
    return m_stepMode == QScientificSpinBox::Decade ? decadesAway(from, steps) : oneTwoFiveAway(from, steps);
}

void QScientificSpinBoxPrivate::stepPlace(int steps)
{
    const bool goesOn = m_steppedPlace.line == line().text() && m_steppedPlace.cursor == line().cursorPosition() &&
                        !line().hasSelectedText();
    std::optional<int> place = goesOn ? m_steppedPlace.place : placeAtCursor();
    if (m_typed.isShownBy(line())) {
        q->interpretText();
    }
    if (!place) { // the text was no number
        line().end(false);
        place = placeAtCursor().value_or(0);
    }
    q->setValue(placesAway(q->value(), *place, steps));
    const QString prefix = q->prefix();
    line().setCursorPosition(
        static_cast<int>(prefix.size()) + cursorBehindPlace(*place, line().text().mid(prefix.size()), style()));
    m_steppedPlace = {*place, line().cursorPosition(), line().text()};
}

std::optional<int> QScientificSpinBoxPrivate::placeAtCursor() const
{
    const auto prefix = static_cast<int>(q->prefix().size());
    // A selected number has its cursor at the start.
    const int cursor = line().hasSelectedText() ? line().selectionEnd() : line().cursorPosition();
    return decimalPlaceAt(cursor - prefix, line().text().mid(prefix), style());
}

double QScientificSpinBoxPrivate::validateAndInterpret(const QString& input, int& pos, QValidator::State& state) const
{
    if (!isReadAsInitially()) {
        return interpretStyled(input, state);
    }
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
    m_private->m_styledValidator->follow(*lineEdit());
    m_private->m_refusal = new RefusalMark(this, lineEdit(), [this] { return m_private->isTextAcceptable(); });
    setLocale(english());
    QDoubleSpinBox::setDecimals(allDigits);
    m_private->m_decimals = initialDigits;
    setRange(std::numeric_limits<double>::lowest(), std::numeric_limits<double>::max());
    setKeyboardTracking(false);
    m_private->m_typed.follow(*this, *lineEdit(), QOverload<double>::of(&QDoubleSpinBox::valueChanged));
    // The typed number decides which of the buttons are enabled.
    connect(lineEdit(), &QLineEdit::textEdited, this, QOverload<>::of(&QWidget::update));
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

QScientificSpinBox::Notation QScientificSpinBox::notation() const
{
    return m_private->m_notation;
}

void QScientificSpinBox::setNotation(Notation notation)
{
    m_private->m_suffix = suffix();
    m_private->m_notation = notation;
    m_private->applyStyle();
}

QLocale QScientificSpinBox::numberLocale() const
{
    return m_private->m_numberLocale;
}

void QScientificSpinBox::setNumberLocale(const QLocale& locale)
{
    m_private->m_suffix = suffix();
    m_private->m_numberLocale = locale;
    m_private->applyStyle();
}

void QScientificSpinBox::resetNumberLocale()
{
    setNumberLocale(QLocale::c());
}

QScientificSpinBox::StepMode QScientificSpinBox::stepMode() const
{
    return m_private->m_stepMode;
}

void QScientificSpinBox::setStepMode(StepMode mode)
{
    m_private->m_stepMode = mode;
}

bool QScientificSpinBox::isRefusalShown() const
{
    return m_private->m_refusal->isEnabled();
}

void QScientificSpinBox::setRefusalShown(bool shown)
{
    m_private->m_refusal->setEnabled(shown);
}

bool QScientificSpinBox::isTextRefused() const
{
    return m_private->m_refusal->isRefused();
}

QString QScientificSpinBox::suffix() const
{
    const QString shown = QDoubleSpinBox::suffix();
    const bool isOurs = shown == m_private->m_suffix.trimmed() && m_private->m_notation == SiPrefix;
    return isOurs ? m_private->m_suffix : shown;
}

void QScientificSpinBox::setSuffix(const QString& suffix)
{
    m_private->m_suffix = suffix;
    QDoubleSpinBox::setSuffix(m_private->m_notation == SiPrefix ? suffix.trimmed() : suffix);
}

QString QScientificSpinBox::textFromValue(double value) const
{
    const bool asInitially = m_private->m_notation == Scientific && m_private->isReadAsInitially();
    return asInitially ? scientificText(value, m_private->m_decimals) : styledNumber(value, m_private->style());
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
    if (!m_private->m_ownValidation && m_private->isReadAsInitially()) {
        QDoubleSpinBox::fixup(input);
    }
}

void QScientificSpinBox::stepBy(int steps)
{
    const bool isHosts = handStepToHost(steps, signalIncrement, signalDecrement);
    if (!isHosts && m_private->m_stepMode != Linear) {
        m_private->stepByMode(steps);
        return;
    }
    if (!isHosts) {
        setValue(value() + singleStep() * steps);
    }
    selectAll();
}

QAbstractSpinBox::StepEnabled QScientificSpinBox::stepEnabled() const
{
    const bool beginsAtTypedNumber = m_private->m_stepMode != Linear && m_private->m_typed.isShownBy(*lineEdit());
    if (!beginsAtTypedNumber || isReadOnly() || wrapping()) {
        return QDoubleSpinBox::stepEnabled();
    }
    const double from = enteredValue();
    StepEnabled enabled = StepNone;
    enabled.setFlag(StepUpEnabled, from < maximum());
    enabled.setFlag(StepDownEnabled, from > minimum());
    return enabled;
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
