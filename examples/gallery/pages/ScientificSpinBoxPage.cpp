// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/ScientificSpinBoxPage.h"

#include "ui/qt/controls/QScientificSpinBox.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QSpinBox>
#include <QVBoxLayout>

namespace gallery {

namespace {

constexpr int initialDigits = 8;
constexpr double lowestPressure = 1000;
constexpr double highestPressure = 20000;

int fieldWidth(const QWidget& field)
{
    return 28 * field.fontMetrics().averageCharWidth();
}

QString describe(QValidator::State state)
{
    switch (state) {
    case QValidator::Acceptable:
        return ScientificSpinBoxPage::tr("Acceptable");
    case QValidator::Intermediate:
        return ScientificSpinBoxPage::tr("Intermediate, go on typing");
    default:
        return ScientificSpinBoxPage::tr("Invalid");
    }
}

} // namespace

ScientificSpinBoxPage::ScientificSpinBoxPage()
    : Page(QStringLiteral("scientific"), tr("Scientific spin box"),
          tr("Type a number such as 1.5E-07, and press Return or leave the field to set it. The arrow keys, the "
             "wheel and the buttons make a step. The program defines what a step is. A text that is not acceptable is "
             "red.")),
      m_decades(new QCheckBox(tr("Step by one &decade"))),
      m_digits(new QSpinBox),
      m_pressure(new SpinBox),
      m_pressureLine(m_pressure->findChild<QLineEdit*>()),
      m_state(new QLabel),
      m_value(new QLabel),
      m_reading(new SpinBox),
      m_notation(new QComboBox),
      m_language(new QComboBox),
      m_stepMode(new QComboBox),
      m_readingValue(new QLabel)
{
    body().addWidget(makeConstantsGroup());
    body().addWidget(makeReadingGroup());
    body().addWidget(makeValidationGroup());
    body().addStretch(1);

    connect(m_decades, &QCheckBox::toggled, this, [this](bool decades) { stepByDecades(decades); });
    connect(m_digits, QOverload<int>::of(&QSpinBox::valueChanged), this, [this](int digits) { showDigits(digits); });
    connect(m_pressureLine, &QLineEdit::textChanged, this, [this] { showValidation(); });
    connect(m_pressure, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, [this] { showValidation(); });
    m_decades->setChecked(true);
    showValidation();
}

QWidget* ScientificSpinBoxPage::makeReadingGroup()
{
    m_notation->addItem(tr("SI prefixes"), SpinBox::SiPrefix);
    m_notation->addItem(tr("Engineering"), SpinBox::Engineering);
    m_notation->addItem(tr("Scientific"), SpinBox::Scientific);
    m_language->addItem(tr("as in programs"), QLocale::c());
    m_language->addItem(tr("German"), QLocale(QLocale::German, QLocale::Germany));
    m_language->addItem(tr("Swedish"), QLocale(QLocale::Swedish, QLocale::Sweden));
    m_language->addItem(tr("US English"), QLocale(QLocale::English, QLocale::UnitedStates));
    m_stepMode->addItem(tr("the digit at the cursor"), SpinBox::LastDigit);
    m_stepMode->addItem(tr("1, 2, 5, 10"), SpinBox::OneTwoFive);
    m_stepMode->addItem(tr("decades"), SpinBox::Decade);
    m_stepMode->addItem(tr("add 1"), SpinBox::Linear);
    m_reading->setSuffix(QStringLiteral(" V"));
    m_reading->setRefusalShown(true);
    m_reading->setMinimumWidth(fieldWidth(*m_reading));
    const auto apply = [this] {
        m_reading->setNotation(static_cast<SpinBox::Notation>(m_notation->currentData().toInt()));
        m_reading->setNumberLocale(m_language->currentData().toLocale());
        m_reading->setStepMode(static_cast<SpinBox::StepMode>(m_stepMode->currentData().toInt()));
    };
    auto* const group = new QGroupBox(tr("Units, languages and steps"));
    auto* const form = new QFormLayout(group);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    form->addRow(tr("&Offset, such as 4.7u:"), m_reading);
    form->addRow(tr("Its value is:"), m_readingValue);
    form->addRow(tr("&Notation:"), m_notation);
    form->addRow(tr("Lan&guage:"), m_language);
    form->addRow(tr("A s&tep changes:"), m_stepMode);
    for (QComboBox* const choice : {m_notation, m_language, m_stepMode}) {
        choice->setMinimumWidth(fieldWidth(*choice));
        connect(choice, QOverload<int>::of(&QComboBox::currentIndexChanged), this, apply);
    }
    connect(m_reading, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, [this] { showReading(); });
    apply();
    m_reading->setValue(4.7e-6);
    return group;
}

void ScientificSpinBoxPage::showReading()
{
    m_readingValue->setText(QString::number(m_reading->value(), 'G', 12));
}

QWidget* ScientificSpinBoxPage::makeConstantsGroup()
{
    m_digits->setRange(1, 12);
    m_digits->setMinimumWidth(fieldWidth(*m_digits));
    m_digits->setValue(initialDigits);

    auto* const group = new QGroupBox(tr("Physical constants"));
    auto* const form = new QFormLayout(group);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    m_constants = {addConstant(*form, tr("&Elementary charge:"), 1.602176634e-19, QStringLiteral(" C")),
        addConstant(*form, tr("&Planck constant:"), 6.62607015e-34, QStringLiteral(" J s")),
        addConstant(*form, tr("&Avogadro constant:"), 6.02214076e23, QStringLiteral(" /mol")),
        addConstant(*form, tr("Speed of &light:"), 299792458, QStringLiteral(" m/s"))};
    form->addRow(tr("S&ignificant digits:"), m_digits);
    form->addRow(QString(), m_decades);
    return group;
}

QWidget* ScientificSpinBoxPage::makeValidationGroup()
{
    m_pressure->setOwnValidation(true);
    m_pressure->setRange(lowestPressure, highestPressure);
    m_pressure->setMinimumWidth(fieldWidth(*m_pressure));

    auto* const group =
        new QGroupBox(tr("Validation of a number from %1 to %2").arg(lowestPressure).arg(highestPressure));
    auto* const form = new QFormLayout(group);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    form->addRow(tr("P&ressure:"), m_pressure);
    form->addRow(tr("The text is:"), m_state);
    form->addRow(tr("The value is:"), m_value);
    return group;
}

ScientificSpinBoxPage::SpinBox* ScientificSpinBoxPage::addConstant(
    QFormLayout& form, const QString& label, double value, const QString& unit)
{
    auto* const field = new SpinBox;
    field->setOwnValidation(true);
    field->setSuffix(unit);
    field->setValue(value);
    field->setMinimumWidth(fieldWidth(*field));
    form.addRow(label, field);
    connect(field, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, [=](double changed) {
        Q_EMIT reported(
            tr("%1 changed to %2").arg(QString(label).remove('&').chopped(1), field->textFromValue(changed)));
    });
    return field;
}

void ScientificSpinBoxPage::stepByDecades(bool decades)
{
    m_decadeSteps.clear();
    if (!decades) {
        Q_EMIT reported(tr("A step adds 1"));
        return;
    }
    for (SpinBox* const field : m_constants) {
        const auto multiply = [field](double factor) { field->setValue(field->value() * factor); };
        m_decadeSteps.emplace_back(field->signalIncrement.connect([multiply] { multiply(10); }));
        m_decadeSteps.emplace_back(field->signalDecrement.connect([multiply] { multiply(0.1); }));
    }
    Q_EMIT reported(tr("A step multiplies by 10"));
}

void ScientificSpinBoxPage::showDigits(int digits)
{
    for (SpinBox* const field : m_constants) {
        field->setDecimals(digits);
    }
}

void ScientificSpinBoxPage::showValidation()
{
    QString text = m_pressureLine->text();
    int cursor = m_pressureLine->cursorPosition();
    m_state->setText(describe(m_pressure->validate(text, cursor)));
    m_value->setText(m_pressure->textFromValue(m_pressure->value()));
}

} // namespace gallery
