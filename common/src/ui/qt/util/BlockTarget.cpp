// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/BlockTarget_p.h"

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
}

bool BlockTarget::addRows(std::size_t rows)
{
    if (m_rows.size() >= rows) {
        return true;
    }
    if (!m_model || (m_isNested && !m_parent.isValid())) {
        return false;
    }
    const int missing = static_cast<int>(rows - m_rows.size());
    const int end = m_model->rowCount(m_parent);
    m_model->insertRows(end, missing, m_parent);
    const int newEnd = m_model ? m_model->rowCount(m_parent) : end;
    for (int row = end; row < std::min(newEnd, end + missing); ++row) {
        m_rows.emplace_back(m_model->index(row, m_columns.front(), m_parent));
    }
    return m_rows.size() == rows;
}

void BlockTarget::removeAddedRows()
{
    while (m_rows.size() > m_ownRows) {
        const QPersistentModelIndex last = m_rows.back();
        m_rows.pop_back();
        if (m_model && last.isValid()) {
            m_model->removeRow(last.row(), m_parent);
        }
    }
}

} // namespace morvane::ui
