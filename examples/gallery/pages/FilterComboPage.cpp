// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/FilterComboPage.h"

#include "pages/FileNameDelegate.h"
#include "ui/qt/controls/ComboBoxAutoFilter.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QStringListModel>
#include <QTableWidget>
#include <QVBoxLayout>

namespace gallery {

using morvane::ui::ComboBoxAutoFilter;

namespace {

/** Twenty thousand names of files, such as a test bench writes them. */
QStringList fileNames()
{
    const QStringList devices = {"bearing", "compressor", "converter", "coolant-pump", "flow-meter", "gearbox",
        "generator", "heat-exchanger", "inlet-valve", "turbine"};
    const QStringList kinds = {"calibration.csv", "config.xml", "current.dat", "flow.dat", "limits.csv", "log.txt",
        "pressure.dat", "speed.dat", "temperature.dat", "voltage.dat"};
    const int runs = 200;
    QStringList names;
    names.reserve(devices.size() * runs * kinds.size());
    for (const QString& device : devices) {
        for (int run = 1; run <= runs; ++run) {
            for (const QString& kind : kinds) {
                names.append(QStringLiteral("%1-%2-%3").arg(device).arg(run, 3, 10, QLatin1Char('0')).arg(kind));
            }
        }
    }
    return names;
}

} // namespace

FilterComboPage::FilterComboPage()
    : Page(QStringLiteral("filter-combo"), tr("Filtering combo box"),
          tr("Type a part of a file name and pick from what is left. Return, Tab and Escape end the editing and close "
             "the field; double-click a cell to edit it the same way.")),
      m_names(new QStringListModel(this)),
      m_fieldRow(new QHBoxLayout),
      m_again(new QPushButton(tr("&Edit Again"))),
      m_table(new QTableWidget(4, 2))
{
    m_fieldRow->addStretch(1);
    m_fieldRow->addWidget(m_again);
    body().addLayout(m_fieldRow);
    prepareTable();
    body().addWidget(m_table, 1);
    connect(m_again, &QPushButton::clicked, this, [this] { addField(); });
}

void FilterComboPage::showEvent(QShowEvent* event)
{
    Page::showEvent(event);
    if (m_names->rowCount() == 0) {
        m_names->setStringList(fileNames());
        fillTable();
        addField();
        Q_EMIT reported(tr("%1 file names to choose from").arg(m_names->rowCount()));
    }
}

void FilterComboPage::addField()
{
    delete m_field;
    m_field = new ComboBoxAutoFilter(this);
    m_field->setAccessibleName(tr("File name"));
    // Computing the width of every name would take longer than reading the names.
    m_field->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_field->setMinimumContentsLength(28);
    m_field->setListModel(
        m_names, true, QCompleter::PopupCompletion, Qt::CaseInsensitive, Qt::ElideMiddle, Qt::MatchContains);
    connect(m_field, &ComboBoxAutoFilter::selectionComplete, this,
        [this] { Q_EMIT reported(tr("selectionComplete: %1").arg(m_field->itemText(m_field->currentIndex()))); });
    connect(m_field, &ComboBoxAutoFilter::editingCanceled, this, [this] { Q_EMIT reported(tr("editingCanceled")); });
    m_fieldRow->insertWidget(0, m_field);
    m_field->show();
    m_field->setFocus();
    m_field->lineEdit()->selectAll();
}

/** Gives each channel another one of the names. */
void FilterComboPage::fillTable()
{
    const int distance = m_names->rowCount() / (m_table->rowCount() + 1);
    for (int row = 0; row < m_table->rowCount(); ++row) {
        m_table->item(row, 1)->setText(m_names->index((row + 1) * distance + row * 23).data().toString());
    }
}

void FilterComboPage::prepareTable()
{
    m_table->setAccessibleName(tr("Files of each channel"));
    m_table->setHorizontalHeaderLabels({tr("Channel"), tr("File")});
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(m_table->fontMetrics().height() * 2);
    m_table->setTabKeyNavigation(false);
    for (int row = 0; row < m_table->rowCount(); ++row) {
        auto* const channel = new QTableWidgetItem(tr("Channel %1").arg(row + 1));
        channel->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        m_table->setItem(row, 0, channel);
        m_table->setItem(row, 1, new QTableWidgetItem);
    }
    auto* const delegate = new FileNameDelegate(*m_names, m_table);
    m_table->setItemDelegateForColumn(1, delegate);
    connect(delegate, &FileNameDelegate::reported, this, &Page::reported);
}

} // namespace gallery
