// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/util/TableCopyHandler.h"
#include "ui/util/CellModel.h"

#include <gtest/gtest.h>

#include <QTableView>

#include <iosfwd>

/** Lets failure messages show texts. */
void PrintTo(const QString& text, std::ostream* out);

namespace morvane::test {

QString clipboardText();

/** Makes the text in the plainest way: sorts all selected indexes and compares each with the one before. */
QString textOfSortedIndexes(const QTableView& view);

/** A shown table view of five rows and four columns with a copy handler, and a user who works in it. */
class TableCopyFixture : public ::testing::Test
{
protected:
    TableCopyFixture();

    void show(QAbstractItemModel& shownModel);

    void click(int row, int column, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void drag(int fromRow, int fromColumn, int toRow, int toColumn);
    void clickRowHeader(int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void clickColumnHeader(int column, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void select(int top, int left, int bottom, int right,
        QItemSelectionModel::SelectionFlags command = QItemSelectionModel::Select);
    QModelIndex index(int row, int column) const { return view.model()->index(row, column); }

    /** Presses the copy shortcut in the view. Returns the text on the clipboard, "(untouched)" if nothing was copied.
     */
    QString copied();

    CellModel model;
    QTableView view;
    ui::TableCopyHandler* handler; // the view's child
};

} // namespace morvane::test
