// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/IntegralSpinBoxPage.h"

#include "ui/qt/controls/Integral64SpinBox.h"
#include "ui/qt/controls/IntegralSpinBox.h"
#include "ui/qt/util/WheelGuard.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

#include <limits>

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
             "other number can still be typed. The second field has its own step, which is 4. In the long form, the "
             "wheel "
             "scrolls, and changes only the field that was clicked.")),
      m_size(new morvane::ui::IntegralSpinBox(this)),
      m_exponent(new QLabel),
      m_channels(new morvane::ui::IntegralSpinBox(this)),
      m_address(new morvane::ui::Integral64SpinBox),
      m_base(new QComboBox),
      m_area(new QScrollArea)
{
    body().addWidget(makeRecordingGroup());
    body().addWidget(makeAddressGroup());
    body().addWidget(makeLongForm());
    body().addStretch(1);

    m_size->signalIncrement.connect([this] { stepToPower(true); });
    m_size->signalDecrement.connect([this] { stepToPower(false); });
    connect(m_size, QOverload<int>::of(&QSpinBox::valueChanged), this, [this](int size) { showSize(size); });
    connect(m_channels, QOverload<int>::of(&QSpinBox::valueChanged), this,
        [this](int channels) { Q_EMIT reported(tr("Channels changed to %1").arg(channels)); });
    m_size->setValue(1024);
}

QWidget* IntegralSpinBoxPage::makeRecordingGroup()
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
    return group;
}

QWidget* IntegralSpinBoxPage::makeAddressGroup()
{
    using Address = morvane::ui::Integral64SpinBox;
    m_address->setMaximum(std::numeric_limits<qint64>::max());
    m_address->setGroupSeparator(QStringLiteral("_"));
    m_address->setRefusalShown(true);
    m_address->setValue(0xdeadbeef0000);
    m_base->addItem(tr("hexadecimal"), Address::Hexadecimal);
    m_base->addItem(tr("decimal"), Address::Decimal);
    m_base->addItem(tr("octal"), Address::Octal);
    const auto apply = [this] {
        m_address->setBase(static_cast<Address::Base>(m_base->currentData().toInt()));
        m_address->setPrefix(m_address->base() == Address::Hexadecimal ? QStringLiteral("0x") : QString());
    };
    connect(m_base, QOverload<int>::of(&QComboBox::currentIndexChanged), this, apply);
    apply();

    auto* const group = new QGroupBox(tr("An integer of 64 bits"));
    auto* const form = new QFormLayout(group);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    form->addRow(tr("&Address:"), m_address);
    form->addRow(tr("Ba&se:"), m_base);
    return group;
}

QWidget* IntegralSpinBoxPage::makeLongForm()
{
    auto* const fields = new QWidget;
    auto* const form = new QFormLayout(fields);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    for (int channel = 1; channel <= 12; ++channel) {
        auto* const gain = new morvane::ui::IntegralSpinBox(fields);
        gain->setValue(10);
        form->addRow(tr("Gain of channel %1:").arg(channel), gain);
    }
    m_area->setWidget(fields);
    m_area->setWidgetResizable(true);
    m_area->setMinimumHeight(4 * fields->sizeHint().height() / 12);
    morvane::ui::guardWheel(*m_area);

    auto* const group = new QGroupBox(tr("A long form"));
    auto* const layout = new QVBoxLayout(group);
    layout->addWidget(m_area);
    return group;
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
