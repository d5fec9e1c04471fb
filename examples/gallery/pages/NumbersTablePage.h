// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Page.h"

#include <memory>

class QItemEditorFactory;
class QModelIndex;
class QStandardItem;
class QStandardItemModel;
class QTableView;

namespace gallery {

/** A parts list. Its numbers are edited in the cells, with the spin boxes as editors of Qt's own delegate. */
class NumbersTablePage : public Page
{
    Q_OBJECT

public:
    NumbersTablePage();
    ~NumbersTablePage() override;

    std::vector<TourStep> tourSteps(const TourWorkspace& workspace) override;

private:
    enum Column
    {
        Part,
        Capacitance,
        Pieces,
        ColumnCount
    };

    void fillModel();
    void prepareTable();
    void report(const QStandardItem& number);
    QModelIndex cell(int row, Column column) const;

    QStandardItemModel* m_parts;
    QTableView* m_table;
    std::unique_ptr<QItemEditorFactory> m_editors;
};

} // namespace gallery
