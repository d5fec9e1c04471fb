// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/TablePastePage.h"

#include "InlineNote.h"
#include "ui/qt/util/TableCopyHandler.h"
#include "ui/qt/util/TablePasteHandler.h"

#include <QAction>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QShortcut>
#include <QStandardItemModel>
#include <QTableView>
#include <QUndoStack>
#include <QVBoxLayout>

namespace gallery {

using morvane::ui::TableCopyHandler;
using morvane::ui::TablePasteHandler;
using morvane::ui::TablePasteRefusal;

namespace {

QString reasonFor(const TablePasteRefusal& cell)
{
    switch (cell.reason) {
    case TablePasteRefusal::Reason::OutsideTable:
        return TablePastePage::tr("the table ends before it");
    case TablePasteRefusal::Reason::NotEditable:
        return TablePastePage::tr("the cell is read-only");
    case TablePasteRefusal::Reason::NotANumber:
        return TablePastePage::tr("\"%1\" is not a number").arg(cell.text);
    case TablePasteRefusal::Reason::RefusedByModel:
        break;
    }
    return TablePastePage::tr("\"%1\" is not possible here").arg(cell.text);
}

QStandardItem* makePoint(int number)
{
    auto* const item = new QStandardItem(TablePastePage::tr("Point %1").arg(number));
    item->setEditable(false);
    return item;
}

QStandardItem* makeNumber(double number)
{
    auto* const item = new QStandardItem;
    item->setData(number, Qt::EditRole);
    item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return item;
}

} // namespace

TablePastePage::TablePastePage()
    : Page(QStringLiteral("table-paste"), tr("Pasting into a table"),
          tr("Copy numbers in a spreadsheet, choose a cell here and press Ctrl+V: all cells of the block are pasted, "
             "or "
             "none. The menu of the right mouse button copies with and without headers.")),
      m_points(new QStandardItemModel(0, ColumnCount, this)),
      m_table(new QTableView),
      m_undoStack(new QUndoStack(this)),
      m_pasting(new TablePasteHandler(*m_table)),
      m_copying(new TableCopyHandler(*m_table)),
      m_note(new InlineNote),
      m_addRows(new QCheckBox(tr("&Longer blocks add rows"))),
      m_undo(new QPushButton(tr("&Undo"))),
      m_redo(new QPushButton(tr("&Redo"))),
      m_copyWithHeaders(new QPushButton(tr("Copy with &Headers")))
{
    fillModel();
    prepareTable();
    preparePasting();
    prepareCopying();
    body().addWidget(m_table, 1);
    body().addWidget(m_note);
    body().addLayout(makeButtons());
}

void TablePastePage::fillModel()
{
    m_points->setHorizontalHeaderLabels({tr("Point"), tr("Voltage in V"), tr("Pressure in kPa")});
    for (int row = 0; row < 6; ++row) {
        m_points->appendRow({makePoint(row + 1), makeNumber(0.5 * row), makeNumber(25.0 * row)});
    }
}

void TablePastePage::prepareTable()
{
    m_table->setAccessibleName(tr("Calibration points"));
    m_table->setModel(m_points);
    m_table->setTabKeyNavigation(false);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_table->setCurrentIndex(m_points->index(0, Voltage));
}

void TablePastePage::preparePasting()
{
    m_pasting->setUndoStack(m_undoStack);
    m_pasting->setNumberLocale(QLocale());
    m_table->addAction(m_pasting->pasteAction());
    connect(m_addRows, &QCheckBox::toggled, m_pasting, &TablePasteHandler::setAddingRows);
    connect(m_pasting, &TablePasteHandler::refused, this, &TablePastePage::showRefusals);
    connect(m_pasting, &TablePasteHandler::pasted, this, [this](int rows, int columns) {
        m_note->setText(QString());
        Q_EMIT reported(tr("Pasted %1 rows with up to %2 columns").arg(rows).arg(columns));
    });
}

void TablePastePage::prepareCopying()
{
    m_copying->setQuoting(true);
    m_copying->setNumberLocale(QLocale());
    m_copying->setKeepingClipboard(true);
    m_copying->setContextMenu(true);
    connect(m_copyWithHeaders, &QPushButton::clicked, m_copying, &TableCopyHandler::copyWithHeaders);
}

QLayout* TablePastePage::makeButtons()
{
    m_undo->setEnabled(false);
    m_redo->setEnabled(false);
    connect(m_undo, &QPushButton::clicked, m_undoStack, &QUndoStack::undo);
    connect(m_redo, &QPushButton::clicked, m_undoStack, &QUndoStack::redo);
    connect(m_undoStack, &QUndoStack::canUndoChanged, m_undo, &QPushButton::setEnabled);
    connect(m_undoStack, &QUndoStack::canRedoChanged, m_redo, &QPushButton::setEnabled);
    const auto onKey = [this](QKeySequence::StandardKey key, void (QUndoStack::*action)()) {
        auto* const shortcut = new QShortcut(QKeySequence(key), this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, m_undoStack, action);
    };
    onKey(QKeySequence::Undo, &QUndoStack::undo);
    onKey(QKeySequence::Redo, &QUndoStack::redo);
    auto* const row = new QHBoxLayout;
    row->addWidget(m_addRows);
    row->addStretch(1);
    row->addWidget(m_undo);
    row->addWidget(m_redo);
    row->addWidget(m_copyWithHeaders);
    return row;
}

void TablePastePage::showRefusals(const QList<TablePasteRefusal>& cells)
{
    const TablePasteRefusal& first = cells.first();
    m_note->setText(tr("Row %1, column %2: %3").arg(first.row + 1).arg(first.column + 1).arg(reasonFor(first)));
    Q_EMIT reported(tr("Nothing was pasted. Cells in the way: %1").arg(cells.size()));
}

} // namespace gallery
