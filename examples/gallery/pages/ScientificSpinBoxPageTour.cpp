// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/ScientificSpinBoxPage.h"
#include "tour/TourUser.h"
#include "ui/qt/controls/QScientificSpinBox.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

#include <cmath>

namespace gallery {

using tour::expect;

std::vector<TourStep> ScientificSpinBoxPage::tourSteps(const TourWorkspace&)
{
    SpinBox* const charge = m_constants.front();
    SpinBox* const light = m_constants.back();
    auto* const chargeLine = charge->findChild<QLineEdit*>();
    auto* const digitsLine = m_digits->findChild<QLineEdit*>();
    const auto shows = [](SpinBox* field, double value, const char* text) {
        // A decade up and down may change the last bit.
        return expect(std::abs(field->value() / value - 1) < 1e-14 && field->text() == QString::fromLatin1(text),
            QStringLiteral("the field shows \"%1\"").arg(field->text()));
    };
    const auto stateIs = [this](const char* state) {
        return expect(m_state->text() == QString::fromLatin1(state),
            QStringLiteral("the text \"%1\" is %2").arg(m_pressureLine->text(), m_state->text()));
    };

    std::vector<TourStep> steps;
    steps.push_back({QStringLiteral("type-constant"),
        [=] {
            tour::type(*chargeLine, QStringLiteral("1.602E-20"));
            tour::press(*charge, Qt::Key_Return);
        },
        [=] { return shows(charge, 1.602e-20, "1.602E-20 C"); }});
    steps.push_back({QStringLiteral("decade-up"), [=] { tour::press(*charge, Qt::Key_Up); },
        [=] { return shows(charge, 1.602e-19, "1.602E-19 C"); }});
    steps.push_back({QStringLiteral("fewer-digits"),
        [=] {
            tour::type(*digitsLine, QStringLiteral("3"));
            tour::press(*m_digits, Qt::Key_Return);
        },
        [=] { return shows(light, 299792458, "3E+08 m/s"); }});
    steps.push_back({QStringLiteral("step-by-one"),
        [=] {
            tour::click(*m_decades);
            tour::click(*light->findChild<QLineEdit*>());
            tour::press(*light, Qt::Key_Up);
        },
        [=] { return shows(light, 299792459, "3E+08 m/s"); }});
    steps.push_back({QStringLiteral("not-yet-valid"), [this] { tour::type(*m_pressureLine, QStringLiteral("15")); },
        [=] { return stateIs("Intermediate, go on typing"); }});
    steps.push_back({QStringLiteral("invalid"), [this] { tour::type(*m_pressureLine, QStringLiteral("99999")); },
        [=] { return stateIs("Invalid"); }});
    steps.push_back({QStringLiteral("acceptable"),
        [this] {
            tour::type(*m_pressureLine, QStringLiteral("1.5E4"));
            tour::press(*m_pressure, Qt::Key_Return);
        },
        [=] {
            const QString complaint = stateIs("Acceptable");
            return complaint.isEmpty() ? expect(m_value->text() == QStringLiteral("15000"), m_value->text())
                                       : complaint;
        }});
    auto* const readingLine = m_reading->findChild<QLineEdit*>();
    const auto reads = [this](const QString& text, const char* value) {
        return expect(m_reading->text() == text && m_readingValue->text() == QString::fromLatin1(value),
            QStringLiteral("the field shows \"%1\", and the value is %2")
                .arg(m_reading->text(), m_readingValue->text()));
    };
    steps.push_back({QStringLiteral("type-prefix"),
        [=] {
            tour::type(*readingLine, QStringLiteral("470u"));
            tour::press(*m_reading, Qt::Key_Return);
        },
        [=] { return reads(QStringLiteral("470 \u00b5V"), "0.00047"); }});
    steps.push_back({QStringLiteral("step-digit"),
        [=] {
            tour::press(*m_reading, Qt::Key_Home);
            tour::press(*m_reading, Qt::Key_Up);
        },
        [=] { return reads(QStringLiteral("570 \u00b5V"), "0.00057"); }});
    steps.push_back({QStringLiteral("decimal-comma"),
        [this, readingLine] {
            tour::press(*m_language, Qt::Key_Down);
            tour::type(*readingLine, QStringLiteral("1,5m"));
            tour::press(*m_reading, Qt::Key_Return);
        },
        [=] { return reads(QStringLiteral("1,5 mV"), "0.0015"); }});
    steps.push_back({QStringLiteral("refused-text"), [=] { tour::type(*readingLine, QStringLiteral("1.5")); },
        [this] { return expect(m_reading->isTextRefused(), QStringLiteral("the text is not refused")); }});
    steps.push_back({QStringLiteral("engineering"),
        [this] {
            tour::press(*m_reading, Qt::Key_Return);
            tour::press(*m_notation, Qt::Key_Down);
        },
        [=] { return reads(QStringLiteral("1,5E-03 V"), "0.0015"); }});
    return steps;
}

} // namespace gallery
