// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "InlineNote.h"
#include "pages/PropertyPage.h"
#include "tour/TourUser.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>

namespace gallery {

using tour::expect;

std::vector<TourStep> PropertyPage::tourSteps(const TourWorkspace&)
{
    const auto samplesAre = [this](int samples) {
        return expect(m_samples->value() == samples && m_samplesField->value() == samples &&
                          m_samplesSlider->value() == samples && m_samplesHeld->text() == QString::number(samples) &&
                          m_samplesNote->text().isEmpty(),
            QStringLiteral("the property holds %1").arg(m_samples->value()));
    };
    const auto operatorIs = [this](const QString& name) {
        return expect(QString::fromStdString(m_operator->value()) == name && m_operatorField->text() == name &&
                          m_operatorHeld->text() == name && m_operatorNote->text().isEmpty(),
            QStringLiteral("the property holds \"%1\"").arg(QString::fromStdString(m_operator->value())));
    };
    auto* const samplesLine = m_samplesField->findChild<QLineEdit*>();

    std::vector<TourStep> steps;
    steps.push_back({QStringLiteral("type-number"), [=] { tour::type(*samplesLine, QStringLiteral("42")); },
        [=] { return samplesAre(42); }});
    steps.push_back({QStringLiteral("number-rejected"), [=] { tour::type(*samplesLine, QStringLiteral("250")); },
        [this] {
            return expect(m_samples->value() == 25 && m_samplesHeld->text() == QStringLiteral("25") &&
                              m_samplesField->value() == 250 &&
                              m_samplesNote->text() == QStringLiteral("250 is not between 1 and 100."),
                QStringLiteral("the note says \"%1\"").arg(m_samplesNote->text()));
        }});
    steps.push_back({QStringLiteral("move-slider"), [this] { tour::press(*m_samplesSlider, Qt::Key_PageUp); },
        [=] { return samplesAre(35); }});
    steps.push_back(
        {QStringLiteral("type-text"), [this] { tour::type(*m_operatorField, QStringLiteral("Grace Hopper")); },
            [=] { return operatorIs(QStringLiteral("Grace Hopper")); }});
    steps.push_back({QStringLiteral("text-rejected"), [this] { tour::type(*m_operatorField, QString()); },
        [this] {
            return expect(m_operator->value() == "Grace Hopper" && m_operatorField->text().isEmpty() &&
                              m_operatorNote->text() == QStringLiteral("The name must not be empty."),
                QStringLiteral("the note says \"%1\"").arg(m_operatorNote->text()));
        }});
    steps.push_back({QStringLiteral("set-by-program"), [this] { tour::click(*m_restore); },
        [=] {
            const QString complaint = samplesAre(25);
            return complaint.isEmpty() ? operatorIs(QStringLiteral("Ada")) : complaint;
        }});
    return steps;
}

} // namespace gallery
