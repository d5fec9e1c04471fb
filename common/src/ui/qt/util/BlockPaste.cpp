// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/BlockPaste_p.h"

#include "ui/qt/util/DelayedWaitCursor_p.h"
#include "ui/qt/util/PastedNumber_p.h"

#include <QAbstractItemModel>

#include <algorithm>
#include <utility>

namespace morvane::ui {

namespace {

std::size_t widthOf(const CellBlock& block)
{
    std::size_t width = 0;
    for (const std::vector<QVariant>& row : block) {
        width = std::max(width, row.size());
    }
    return width;
}

bool isEditable(const QModelIndex& cell)
{
    constexpr Qt::ItemFlags wanted = Qt::ItemIsEnabled | Qt::ItemIsEditable;
    return (cell.flags() & wanted) == wanted;
}

} // namespace

BlockPaste::BlockPaste(const QModelIndex& first, CellBlock block, Rules rules)
    : m_texts(rules.numberLocale ? block : CellBlock()),
      m_width(widthOf(block)),
      m_rules(std::move(rules)),
      m_first(first),
      m_target(first, block.size(), m_width),
      m_block(std::move(block))
{
}

bool BlockPaste::paste()
{
    const BlockTarget::ResetGuard guard(m_target);
    DelayedWaitCursor waitCursor;
    check(waitCursor);
    if (!m_refusals.isEmpty()) {
        return false;
    }
    try {
        addRows();
        if (m_refusals.isEmpty()) {
            write(waitCursor);
            refuseUnchanged();
        }
    } catch (...) {
        takeBack();
        throw;
    }
    if (!m_refusals.isEmpty()) {
        takeBack();
    }
    return m_refusals.isEmpty();
}

void BlockPaste::takeBack()
{
    const BlockTarget::ResetGuard guard(m_target);
    DelayedWaitCursor waitCursor;
    std::vector<Place> skipped = std::exchange(m_unchanged, {});
    // Backwards, because a value may depend on one that was written before it.
    while (m_end.row > 0 || m_end.column > 0) {
        if (m_end.column == 0) {
            --m_end.row;
            m_end.column = m_block[m_end.row].size();
        }
        --m_end.column;
        waitCursor.step();
        if (!skipped.empty() && skipped.back() == m_end) {
            skipped.pop_back();
        } else if (!exchange(m_end)) {
            m_unchanged.push_back(m_end);
        }
    }
    m_target.removeAddedRows();
}

void BlockPaste::pasteAgain()
{
    const BlockTarget::ResetGuard guard(m_target);
    DelayedWaitCursor waitCursor;
    m_target.addRows(m_block.size());
    write(waitCursor);
}

void BlockPaste::check(DelayedWaitCursor& waitCursor)
{
    const QAbstractItemModel& shown = *m_first.model();
    const QModelIndex parent = m_first.parent();
    for (std::size_t row = 0; row < m_block.size(); ++row) {
        waitCursor.step();
        const bool isOutside = row >= m_target.rowCount();
        const int shownRow = m_first.row() + static_cast<int>(row);
        const std::size_t width = m_block[row].size();
        for (std::size_t column = 0; column < width; ++column) {
            if (column >= m_target.columnCount() || (isOutside && !m_rules.mayAddRows)) {
                refuse({row, column}, TablePasteRefusal::Reason::OutsideTable);
            } else if (!isOutside) {
                checkCell({row, column}, shown.index(shownRow, m_first.column() + static_cast<int>(column), parent));
            } else if (m_rules.numberLocale) {
                // A row that does not exist yet gets numbers where the last row has them.
                readNumber({row, column}, m_target.cell(m_target.rowCount() - 1, column));
            }
        }
    }
}

void BlockPaste::checkCell(Place place, const QModelIndex& shown)
{
    if (!isEditable(shown)) {
        refuse(place, TablePasteRefusal::Reason::NotEditable);
    } else if (m_rules.numberLocale) {
        readNumber(place, m_target.cell(place.row, place.column));
    }
}

void BlockPaste::readNumber(Place place, const QModelIndex& example)
{
    const QVariant old = example.data(Qt::EditRole);
    if (!isNumber(old)) {
        return;
    }
    if (const auto number = pastedNumber(m_texts[place.row][place.column].toString(), old, *m_rules.numberLocale)) {
        m_block[place.row][place.column] = *number;
    } else {
        refuse(place, TablePasteRefusal::Reason::NotANumber);
    }
}

void BlockPaste::addRows()
{
    const std::size_t own = m_target.rowCount();
    m_target.addRows(m_block.size());
    for (std::size_t row = own; row < m_block.size(); ++row) {
        const bool isAdded = row < m_target.rowCount();
        for (std::size_t column = 0; column < m_block[row].size(); ++column) {
            if (!isAdded) {
                refuse({row, column}, TablePasteRefusal::Reason::OutsideTable);
            } else if (!isEditable(m_target.cell(row, column))) {
                refuse({row, column}, TablePasteRefusal::Reason::NotEditable);
            }
        }
    }
}

void BlockPaste::write(DelayedWaitCursor& waitCursor)
{
    std::vector<Place> skipped = std::exchange(m_unchanged, {});
    const std::size_t rows = std::min(m_block.size(), m_target.rowCount());
    for (m_end = {0, 0}; m_end.row < rows; m_end = {m_end.row + 1, 0}) {
        for (; m_end.column < m_block[m_end.row].size(); ++m_end.column) {
            waitCursor.step();
            if (!skipped.empty() && skipped.back() == m_end) {
                skipped.pop_back();
            } else if (!exchange(m_end)) {
                m_unchanged.push_back(m_end);
            }
        }
    }
}

void BlockPaste::refuseUnchanged()
{
    for (const Place& place : m_unchanged) {
        // Some models return false for the value that they have.
        const QModelIndex cell = m_target.cell(place.row, place.column);
        const QVariant& value = m_block[place.row][place.column];
        if (!cell.isValid() || cell.data(Qt::EditRole).toString() != value.toString()) {
            refuse(place, TablePasteRefusal::Reason::RefusedByModel);
        }
    }
}

bool BlockPaste::exchange(Place place)
{
    const QModelIndex cell = m_target.cell(place.row, place.column);
    if (!cell.isValid()) {
        return false;
    }
    QAbstractItemModel& model = *m_target.model();
    QVariant& value = m_block[place.row][place.column];
    QVariant old = model.data(cell, Qt::EditRole);
    const bool isWritten = model.setData(cell, value, Qt::EditRole);
    if (isWritten) {
        value.swap(old);
    }
    return isWritten;
}

void BlockPaste::refuse(Place place, TablePasteRefusal::Reason reason)
{
    const CellBlock& texts = m_texts.empty() ? m_block : m_texts;
    const QString text = texts[place.row][place.column].toString();
    m_refusals.append(
        {m_first.row() + static_cast<int>(place.row), m_first.column() + static_cast<int>(place.column), text, reason});
}

} // namespace morvane::ui
