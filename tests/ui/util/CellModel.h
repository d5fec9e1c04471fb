// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractTableModel>

#include <functional>

namespace morvane::test {

/** A table whose cells are made by a function of row and column; its cells cannot be changed. */
class CellModel : public QAbstractTableModel
{
public:
    using Cell = std::function<QVariant(int row, int column)>;

    CellModel(int rows, int columns, Cell cell = &CellModel::position)
        : m_rows(rows), m_columns(columns), m_cell(std::move(cell))
    {
    }

    /** "r3c1" for row 3, column 1. */
    static QVariant position(int row, int column) { return QStringLiteral("r%1c%2").arg(row).arg(column); }

    /** Sets which cells are selectable and enabled; by default, all are. */
    std::function<Qt::ItemFlags(int row, int column)> cellFlags;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override { return parent.isValid() ? 0 : m_rows; }
    int columnCount(const QModelIndex& parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : m_columns;
    }
    QVariant data(const QModelIndex& index, int role) const override
    {
        return index.isValid() && role == Qt::DisplayRole ? m_cell(index.row(), index.column()) : QVariant();
    }
    Qt::ItemFlags flags(const QModelIndex& index) const override
    {
        return cellFlags && index.isValid() ? cellFlags(index.row(), index.column())
                                            : QAbstractTableModel::flags(index);
    }

private:
    int m_rows;
    int m_columns;
    Cell m_cell;
};

} // namespace morvane::test
