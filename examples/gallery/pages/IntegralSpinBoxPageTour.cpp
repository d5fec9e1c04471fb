// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/IntegralSpinBoxPage.h"
#include "tour/TourUser.h"
#include "ui/qt/controls/Integral64SpinBox.h"
#include "ui/qt/controls/IntegralSpinBox.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

namespace gallery {

using tour::expect;

std::vector<TourStep> IntegralSpinBoxPage::tourSteps(const TourWorkspace&)
{
    auto* const sizeLine = m_size->findChild<QLineEdit*>();
    const auto sizeIs = [this](int size, const char* held) {
        return expect(m_size->value() == size && m_exponent->text() == QString::fromLatin1(held),
            QStringLiteral("the size is %1, %2").arg(m_size->value()).arg(m_exponent->text()));
    };

    std::vector<TourStep> steps;
    steps.push_back({QStringLiteral("next-power"),
        [=] {
            tour::click(*sizeLine);
            tour::press(*m_size, Qt::Key_Up);
        },
        [=] { return sizeIs(2048, "2 to the power of 11"); }});
    steps.push_back({QStringLiteral("type-number"),
        [=] {
            tour::type(*sizeLine, QStringLiteral("1000"));
            tour::press(*m_size, Qt::Key_Return);
        },
        [=] { return sizeIs(1000, "1000, no power of two"); }});
    steps.push_back({QStringLiteral("power-below"), [this] { tour::press(*m_size, Qt::Key_Down); },
        [=] { return sizeIs(512, "2 to the power of 9"); }});
    steps.push_back({QStringLiteral("own-step"),
        [this] {
            tour::click(*m_channels->findChild<QLineEdit*>());
            tour::press(*m_channels, Qt::Key_Up);
        },
        [this] { return expect(m_channels->value() == 4, QString::number(m_channels->value())); }});
    const auto addressIs = [this](const char* text) {
        return expect(m_address->text() == QString::fromLatin1(text), m_address->text());
    };
    steps.push_back({QStringLiteral("type-address"),
        [this] {
            tour::type(*m_address->findChild<QLineEdit*>(), QStringLiteral("7fff00001234"));
            tour::press(*m_address, Qt::Key_Return);
        },
        [=] { return addressIs("0x7FFF_0000_1234"); }});
    steps.push_back({QStringLiteral("decimal-address"), [this] { tour::press(*m_base, Qt::Key_Down); },
        [=] { return addressIs("140_733_193_392_692"); }});
    return steps;
}

} // namespace gallery
