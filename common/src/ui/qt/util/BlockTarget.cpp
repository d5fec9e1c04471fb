// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/BlockTarget_p.h"

#include <QScopedValueRollback>
#include <QSortFilterProxyModel>

#include <algorithm>

namespace morvane::ui {

namespace {

QModelIndex sourceOf(QModelIndex index)
{
    while (const auto* const proxy = qobject_cast<const QSortFilterProxyModel*>(index.model())) {
        index = proxy->mapToSource(index);
    }
    return index;
}

/** Where a column is after columns `first` to `last` were moved before `destination`. */
int movedColumn(int column, int first, int last, int destination)
{
    const int count = last - first + 1;
    if (first <= column && column <= last) {
        return destination < first ? column - first + destination : column - last - 1 + destination;
    }
    if (destination <= column && column < first) {
        return column + count;
    }
    return last < column && column < destination ? column - count : column;
}

} // namespace

BlockTarget::BlockTarget(const QModelIndex& first, std::size_t rows, std::size_t columns)
{
    const QModelIndex parent = first.parent();
    const int lastRow =
        static_cast<int>(std::min(static_cast<std::size_t>(first.model()->rowCount(parent) - first.row()), rows));
    const int lastColumn = static_cast<int>(
        std::min(static_cast<std::size_t>(first.model()->columnCount(parent) - first.column()), columns));
    for (int row = 0; row < lastRow; ++row) {
        m_rows.emplace_back(sourceOf(first.sibling(first.row() + row, first.column())));
    }
    for (int column = 0; column < lastColumn; ++column) {
        m_columns.push_back(sourceOf(first.sibling(first.row(), first.column() + column)).column());
    }
    m_ownRows = m_rows.size();
    const QModelIndex source = sourceOf(first);
    m_model = const_cast<QAbstractItemModel*>(source.model());
    m_parent = source.parent();
    m_isNested = m_parent.isValid();
    followColumns();
}

// Not with persistent indexes, because the row of such an index may be removed.
void BlockTarget::followColumns()
{
    const auto change = [this](const QModelIndex& parent, auto placeOf) {
        if (isParent(parent)) {
            std::transform(m_columns.begin(), m_columns.end(), m_columns.begin(), placeOf);
        }
    };
    const QAbstractItemModel* const model = m_model;
    QObject::connect(model, &QAbstractItemModel::columnsInserted, &m_watcher,
        [change](const QModelIndex& parent, int first, int last) {
            change(parent, [=](int column) { return column >= first ? column + last - first + 1 : column; });
        });
    QObject::connect(model, &QAbstractItemModel::columnsAboutToBeRemoved, &m_watcher,
        [this](const QModelIndex& parent, int first, int last) {
            if (isParent(parent)) {
                leaveColumns(first, last);
            }
        });
    QObject::connect(model, &QAbstractItemModel::columnsRemoved, &m_watcher,
        [change](const QModelIndex& parent, int first, int last) {
            change(parent, [=](int column) {
                return column < first ? column : column <= last ? -1 : column - (last - first + 1);
            });
        });
    QObject::connect(model, &QAbstractItemModel::columnsMoved, &m_watcher,
        [change](const QModelIndex& parent, int first, int last, const QModelIndex& target, int destination) {
            if (parent == target) {
                change(parent, [=](int column) { return movedColumn(column, first, last, destination); });
            }
        });
}

/** Otherwise the rows would be lost together with the column by which they are remembered. */
void BlockTarget::leaveColumns(int first, int last)
{
    const int other = first > 0 ? 0 : last + 1;
    for (QPersistentModelIndex& row : m_rows) {
        if (row.column() >= first && row.column() <= last && other < m_model->columnCount(m_parent)) {
            row = m_model->index(row.row(), other, m_parent);
        }
    }
}

BlockTarget::ResetGuard::ResetGuard(BlockTarget& target)
{
    if (!target.m_model || target.m_isNested) {
        return;
    }
    QAbstractItemModel& model = *target.m_model;
    QObject::connect(&model, &QAbstractItemModel::modelAboutToBeReset, &m_watcher, [this, &target, &model] {
        m_rows.clear();
        for (const QPersistentModelIndex& row : target.m_rows) {
            m_rows.push_back(row.row());
        }
        m_rowCount = model.rowCount();
        m_columnCount = model.columnCount();
    });
    QObject::connect(&model, &QAbstractItemModel::modelReset, &m_watcher, [this, &target, &model] {
        const bool hasSameRows = target.m_isEndChanging || model.rowCount() == m_rowCount;
        if (hasSameRows && model.columnCount() == m_columnCount) {
            std::transform(m_rows.begin(), m_rows.end(), target.m_rows.begin(),
                [&model](int row) { return QPersistentModelIndex(model.index(row, 0)); });
        }
    });
}

bool BlockTarget::addRows(std::size_t rows)
{
    if (m_rows.size() >= rows) {
        return true;
    }
    if (!m_model || (m_isNested && !m_parent.isValid())) {
        return false;
    }
    const QScopedValueRollback<bool> isEndChanging(m_isEndChanging, true);
    const int missing = static_cast<int>(rows - m_rows.size());
    const int end = m_model->rowCount(m_parent);
    m_model->insertRows(end, missing, m_parent);
    const int newEnd = m_model ? m_model->rowCount(m_parent) : end;
    for (int row = end; row < std::min(newEnd, end + missing); ++row) {
        m_rows.emplace_back(m_model->index(row, 0, m_parent));
    }
    return m_rows.size() == rows;
}

void BlockTarget::removeAddedRows()
{
    const QScopedValueRollback<bool> isEndChanging(m_isEndChanging, true);
    while (m_rows.size() > m_ownRows) {
        const QPersistentModelIndex last = m_rows.back();
        m_rows.pop_back();
        if (m_model && last.isValid()) {
            m_model->removeRow(last.row(), m_parent);
        }
    }
}

} // namespace morvane::ui
