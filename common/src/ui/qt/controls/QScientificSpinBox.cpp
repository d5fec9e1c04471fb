#include "ui/qt/controls/QScientificSpinBox.h"

#include "ui/qt/controls/ScientificNumberText.h"
#include "ui/qt/controls/StepSignals.h"
#include "ui/qt/util/GuiThread.h"

#include <QDoubleValidator>
#include <QLineEdit>
#include <QLocale>
#include <QVariant>

#include <algorithm>
#include <limits>
#include <utility>

namespace morvane::ui {

namespace {

constexpr int mostDigits = 12;
constexpr int initialDigits = 8;
constexpr int allDigits = 1000;

/** The text validated last, by whichever spin box. */
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

} // namespace

class QScientificSpinBoxPrivate
{
public:
    explicit QScientificSpinBoxPrivate(QScientificSpinBox* spinBox);

    double validateAndInterpret(const QString& input, int& pos, QValidator::State& state) const;
    void stepBy(int steps);

    QScientificSpinBox* q;
    int m_decimals = mostDigits;
    QChar m_delimiter = QLatin1Char('.');
    QChar m_groupSeparator = QLatin1Char(',');
    QDoubleValidator* m_validator;
    QDoubleSpinBox* m_spinBox;
    boost::signals2::signal<void()>* m_increment;
    boost::signals2::signal<void()>* m_decrement;

private:
    NumberRules rules() const;
};

QScientificSpinBoxPrivate::QScientificSpinBoxPrivate(QScientificSpinBox* spinBox)
    : q(spinBox),
      m_validator(new QDoubleValidator(spinBox)),
      m_spinBox(spinBox),
      m_increment(&spinBox->signalIncrement),
      m_decrement(&spinBox->signalDecrement)
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

void QScientificSpinBoxPrivate::stepBy(int steps)
{
    if (!handStepToHost(steps, *m_increment, *m_decrement)) {
        m_spinBox->setValue(m_spinBox->value() + m_spinBox->singleStep() * steps);
    }
}

QScientificSpinBox::QScientificSpinBox(QWidget* parent)
    : QDoubleSpinBox(parent), m_private(new QScientificSpinBoxPrivate(this))
{
    expectGuiThread("QScientificSpinBox");
    setLocale(english());
    lineEdit()->setValidator(m_private->m_validator);
    QDoubleSpinBox::setDecimals(allDigits);
    m_private->m_decimals = initialDigits;
    setRange(std::numeric_limits<double>::lowest(), std::numeric_limits<double>::max());
    setKeyboardTracking(false);
}

QScientificSpinBox::~QScientificSpinBox() = default;

int QScientificSpinBox::decimals() const
{
    return m_private->m_decimals;
}

void QScientificSpinBox::setDecimals(int digits)
{
    m_private->m_decimals = std::min(digits, mostDigits);
    // Shows the value anew and forgets the size hints, without rounding the value as setValue() does.
    setPrefix(prefix());
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

void QScientificSpinBox::stepBy(int steps)
{
    m_private->stepBy(steps);
}

void QScientificSpinBox::signalIncrementConnected() const {}

void QScientificSpinBox::signalDecrementConnected() const {}

} // namespace morvane::ui
