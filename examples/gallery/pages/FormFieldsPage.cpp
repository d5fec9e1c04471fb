// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/FormFieldsPage.h"

#include "ui/qt/controls/ComboBoxAutoFilter.h"
#include "ui/qt/controls/IntegralSpinBox.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QVBoxLayout>

namespace gallery {

using morvane::ui::ComboBoxAutoFilter;

namespace {

QString entryOf(const ComboBoxAutoFilter& field)
{
    return field.itemText(field.currentIndex());
}

} // namespace

FormFieldsPage::FormFieldsPage()
    : Page(QStringLiteral("form-fields"), tr("Form fields"),
          tr("Type a part of a name, select a suggestion with the arrow keys, and leave the field with Tab. Return "
             "chooses an entry, too. Escape restores the previous entry, and so does a name that is not in the list.")),
      m_operator(new QLineEdit),
      m_substance(new ComboBoxAutoFilter(this)),
      m_device(new ComboBoxAutoFilter(this)),
      m_samples(new morvane::ui::IntegralSpinBox(this)),
      m_channel(new ComboBoxAutoFilter(this)),
      m_held(new QLabel)
{
    m_operator->setPlaceholderText(tr("Name"));
    prepareField(*m_substance,
        {tr("Acetone"), tr("Benzene"), tr("Butane"), tr("Ethanol"), tr("Ethene"), tr("Methane"), tr("Methanol"),
            tr("Polyethene"), tr("Propane"), tr("Propylene"), tr("Toluene"), tr("Water")});
    m_substance->setObjectName(QStringLiteral("substance"));
    prepareField(*m_device,
        {tr("Balance"), tr("Flow meter"), tr("Manometer"), tr("Spectrometer (in repair)"), tr("Thermometer")});
    if (auto* const devices = qobject_cast<QStandardItemModel*>(m_device->model())) {
        devices->item(3)->setEnabled(false);
    }
    prepareChannel();
    m_samples->setRange(1, 65536);
    m_samples->setValue(1024);

    auto* const group = new QGroupBox(tr("Measurement"));
    auto* const form = new QFormLayout(group);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    form->addRow(tr("Ope&rator:"), m_operator);
    form->addRow(tr("&Substance:"), m_substance);
    form->addRow(tr("&Device:"), m_device);
    form->addRow(tr("S&amples:"), m_samples);
    form->addRow(tr("&Channel:"), m_channel);
    form->addRow(tr("The form holds:"), m_held);
    body().addWidget(group);
    body().addStretch(1);
    showForm();
}

void FormFieldsPage::prepareField(ComboBoxAutoFilter& field, const QStringList& entries)
{
    field.setEditMode(ComboBoxAutoFilter::FormField);
    field.setList(entries);
    field.setCompleterAttributes(
        true, QCompleter::PopupCompletion, Qt::CaseInsensitive, Qt::ElideRight, Qt::MatchContains);
    field.setMinimumContentsLength(24);
    connect(&field, &ComboBoxAutoFilter::selectionComplete, this, [this, &field] {
        showForm();
        Q_EMIT reported(tr("selectionComplete: %1").arg(entryOf(field)));
    });
    connect(&field, &ComboBoxAutoFilter::editingCanceled, this,
        [this, &field] { Q_EMIT reported(tr("editingCanceled, still %1").arg(entryOf(field))); });
}

void FormFieldsPage::prepareChannel()
{
    QStringList channels;
    for (const char* const place : {"Bearing", "Coolant", "Cr\xC3\xA9maill\xC3\xA8re", "Fabry-P\xC3\xA9rot cavity"}) {
        for (const char* const quantity : {"pressure", "temperature", "vibration"}) {
            channels.append(QStringLiteral("%1 %2").arg(QString::fromUtf8(place), QLatin1String(quantity)));
        }
    }
    // The words of a text are found in any order, and with or without accents.
    m_channel->setMatchingWords(true);
    m_channel->setIgnoringAccents(true);
    m_channel->setMatchShown(true);
    prepareField(*m_channel, channels);
    m_channel->setToolTip(tr("Several words find an entry that has all of them, for instance: temp perot"));
}

void FormFieldsPage::showForm()
{
    m_held->setText(tr("%1, measured with: %2").arg(entryOf(*m_substance), entryOf(*m_device)));
}

} // namespace gallery
