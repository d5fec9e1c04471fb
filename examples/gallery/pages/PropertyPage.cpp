// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/PropertyPage.h"

#include "InlineNote.h"
#include "tour/TourUser.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>
#include <QVBoxLayout>

#include <boost/make_shared.hpp>

namespace gallery {

namespace {

constexpr int initialSamples = 25;
constexpr int fewestSamples = 1;
constexpr int mostSamples = 100;
const char* const initialOperator = "Ada";

class SamplesValidator : public morvane::ValidatorInterface<int>
{
public:
    morvane::ValidationResult validate(const int& samples) const override
    {
        if (samples >= fewestSamples && samples <= mostSamples) {
            return morvane::ValidationResult();
        }
        return morvane::ValidationResult(std::to_string(samples) + " is not between " + std::to_string(fewestSamples) +
                                         " and " + std::to_string(mostSamples) + ".");
    }
};

class NotEmptyValidator : public morvane::ValidatorInterface<std::string>
{
public:
    morvane::ValidationResult validate(const std::string& text) const override
    {
        const bool blank = text.find_first_not_of(" \t") == std::string::npos;
        return blank ? morvane::ValidationResult("The name must not be empty.") : morvane::ValidationResult();
    }
};

/**
 * Sets @p property as a field does. The note shows the reason if @p value is rejected. @return the reason, or an empty
 * text
 */
template <typename T>
QString set(morvane::PropertyAbstract<T>& property, const T& value, InlineNote& note)
{
    QString rejection;
    try {
        property.setValue(value);
    } catch (const morvane::InvalidPropertyValueException& exception) {
        rejection = QString::fromUtf8(exception.what());
    }
    note.setText(rejection);
    return rejection;
}

} // namespace

PropertyPage::PropertyPage()
    : Page(QStringLiteral("property"), tr("Observable property"),
          tr("Each value is one property. Its validator decides which values may be stored. Every field that is bound "
             "to "
             "the property shows the stored value. Try a value that is not allowed.")),
      m_samples(boost::make_shared<morvane::Property<int>>(initialSamples)),
      m_operator(boost::make_shared<morvane::Property<std::string>>(initialOperator)),
      m_samplesField(new QSpinBox),
      m_samplesSlider(new QSlider(Qt::Horizontal)),
      m_samplesHeld(new QLabel),
      m_samplesNote(new InlineNote),
      m_operatorField(new QLineEdit),
      m_operatorHeld(new QLabel),
      m_operatorNote(new InlineNote),
      m_restore(new QPushButton(tr("&Restore Initial Values")))
{
    m_samples->setValidator(boost::make_shared<SamplesValidator>());
    m_operator->setValidator(boost::make_shared<NotEmptyValidator>());

    body().addWidget(makeSamplesGroup());
    body().addWidget(makeOperatorGroup());
    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(m_restore);
    buttons->addStretch(1);
    body().addLayout(buttons);
    body().addStretch(1);

    bindSamples();
    bindOperator();
    connect(m_restore, &QPushButton::clicked, this, [this] { restoreInitialValues(); });
}

QWidget* PropertyPage::makeSamplesGroup()
{
    // Wider than the validator's range, so that values can be rejected.
    m_samplesField->setRange(-1000, 1000);
    m_samplesField->setMinimumWidth(12 * m_samplesField->fontMetrics().averageCharWidth());
    m_samplesSlider->setRange(fewestSamples, mostSamples);
    m_samplesSlider->setTickPosition(QSlider::TicksBelow);
    m_samplesSlider->setTickInterval(10);

    auto* const group = new QGroupBox(tr("A number from %1 to %2").arg(fewestSamples).arg(mostSamples));
    auto* const form = new QFormLayout(group);
    auto* const fields = new QHBoxLayout;
    fields->addWidget(m_samplesField);
    fields->addSpacing(12);
    fields->addWidget(m_samplesSlider, 1);
    auto* const label = new QLabel(tr("&Samples:"));
    label->setBuddy(m_samplesField);
    form->addRow(label, fields);
    form->addRow(QString(), m_samplesNote);
    form->addRow(tr("The property holds:"), m_samplesHeld);
    return group;
}

QWidget* PropertyPage::makeOperatorGroup()
{
    auto* const group = new QGroupBox(tr("A text that is not empty"));
    auto* const form = new QFormLayout(group);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_operatorHeld->setTextFormat(Qt::PlainText);
    form->addRow(tr("&Operator:"), m_operatorField);
    form->addRow(QString(), m_operatorNote);
    form->addRow(tr("The property holds:"), m_operatorHeld);
    return group;
}

void PropertyPage::bindSamples()
{
    m_samples->signalValueChanged.connect([this](const int& samples) {
        showSamples(samples);
        Q_EMIT reported(tr("Samples changed to %1").arg(samples));
    });
    const auto setSamples = [this](int samples) {
        const QString rejection = set(*m_samples, samples, *m_samplesNote);
        if (!rejection.isEmpty()) {
            Q_EMIT reported(tr("Samples rejected: %1").arg(rejection));
        }
    };
    connect(m_samplesField, QOverload<int>::of(&QSpinBox::valueChanged), this, setSamples);
    connect(m_samplesSlider, &QSlider::valueChanged, this, setSamples);
    showSamples(m_samples->value());
}

void PropertyPage::bindOperator()
{
    m_operator->signalValueChanged.connect([this](const std::string& name) {
        showOperator(name);
        Q_EMIT reported(tr("Operator changed to \"%1\"").arg(QString::fromStdString(name)));
    });
    connect(m_operatorField, &QLineEdit::textChanged, this, [this](const QString& text) {
        const QString rejection = set(*m_operator, text.toStdString(), *m_operatorNote);
        if (!rejection.isEmpty()) {
            Q_EMIT reported(tr("Operator rejected: %1").arg(rejection));
        }
    });
    showOperator(m_operator->value());
}

void PropertyPage::restoreInitialValues()
{
    set(*m_samples, initialSamples, *m_samplesNote);
    set(*m_operator, std::string(initialOperator), *m_operatorNote);
    // After a rejected input the field differs from the property, and the property may not have fired a signal.
    showSamples(m_samples->value());
    showOperator(m_operator->value());
}

void PropertyPage::showSamples(int samples)
{
    const QSignalBlocker field(m_samplesField);
    const QSignalBlocker slider(m_samplesSlider);
    m_samplesField->setValue(samples);
    m_samplesSlider->setValue(samples);
    m_samplesHeld->setNum(samples);
}

void PropertyPage::showOperator(const std::string& name)
{
    const QString text = QString::fromStdString(name);
    const QSignalBlocker field(m_operatorField);
    if (m_operatorField->text() != text) {
        m_operatorField->setText(text);
    }
    m_operatorHeld->setText(text);
}

} // namespace gallery
