// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/IntegralSpinBoxPage.h"

#include "ui/qt/controls/IntegralSpinBox.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

namespace gallery {

namespace {

constexpr int smallestSize = 1;
constexpr int largestSize = 1 << 20;

/** The next power of two above or below `size`, within the range. */
int neighbouringPower(int size, bool up)
{
    int power = smallestSize;
    while (power < largestSize && (up ? power <= size : power * 2 < size)) {
        power *= 2;
    }
    return power;
}

} // namespace

IntegralSpinBoxPage::IntegralSpinBoxPage()
    : Page(QStringLiteral("integer"), tr("Integer spin box"),
          tr("The first field steps from one power of two to the next, because the program handles the steps. Any "
             "other number can still be typed. The second field has its own step, which is 4.")),
      m_size(new morvane::ui::IntegralSpinBox(this)),
      m_exponent(new QLabel),
      m_channels(new morvane::ui::IntegralSpinBox(this))
{
    m_size->setRange(smallestSize, largestSize);
    m_size->setSuffix(tr(" samples"));
    m_size->setMinimumWidth(24 * m_size->fontMetrics().averageCharWidth());
    m_channels->setSingleStep(4);
    m_channels->setMinimumWidth(m_size->minimumWidth());

    auto* const group = new QGroupBox(tr("Recording"));
    auto* const form = new QFormLayout(group);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    form->addRow(tr("&Buffer size:"), m_size);
    form->addRow(tr("The buffer holds:"), m_exponent);
    form->addRow(tr("&Channels:"), m_channels);
    body().addWidget(group);
    body().addStretch(1);

    m_size->signalIncrement.connect([this] { stepToPower(true); });
    m_size->signalDecrement.connect([this] { stepToPower(false); });
    connect(m_size, QOverload<int>::of(&QSpinBox::valueChanged), this, [this](int size) { showSize(size); });
    connect(m_channels, QOverload<int>::of(&QSpinBox::valueChanged), this,
        [this](int channels) { Q_EMIT reported(tr("Channels changed to %1").arg(channels)); });
    m_size->setValue(1024);
}

void IntegralSpinBoxPage::stepToPower(bool up)
{
    Q_EMIT reported(up ? tr("The program handles a step up") : tr("The program handles a step down"));
    m_size->setValue(neighbouringPower(m_size->value(), up));
}

void IntegralSpinBoxPage::showSize(int size)
{
    int exponent = 0;
    while (1 << exponent < size) {
        ++exponent;
    }
    const bool isPower = 1 << exponent == size;
    m_exponent->setText(isPower ? tr("2 to the power of %1").arg(exponent) : tr("%1, no power of two").arg(size));
    Q_EMIT reported(tr("Buffer size changed to %1").arg(size));
}

} // namespace gallery
