// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/util/TablePasteHandler.h"

#include <gtest/gtest.h>

#include <QStandardItemModel>
#include <QTableView>

#include <functional>
#include <string>

namespace morvane::test {

/** A model whose cells can refuse values. */
class PickyModel : public QStandardItemModel
{
public:
    using QStandardItemModel::QStandardItemModel;

    bool setData(const QModelIndex& index, const QVariant& value, int role) override
    {
        ++writes;
        return (!accepts || accepts(index, value)) && QStandardItemModel::setData(index, value, role);
    }
    Qt::ItemFlags flags(const QModelIndex& index) const override
    {
        const Qt::ItemFlags all = QStandardItemModel::flags(index);
        return isReadOnly && isReadOnly(index) ? all & ~Qt::ItemIsEditable : all;
    }
    bool insertRows(int row, int count, const QModelIndex& parent) override
    {
        return QStandardItemModel::insertRows(row, std::min(count, mostRows - rowCount(parent)), parent);
    }

    std::function<bool(const QModelIndex& index, const QVariant& value)> accepts;
    std::function<bool(const QModelIndex& index)> isReadOnly;
    int mostRows = 1000;
    int writes = 0;
};

/** A shown table of four rows and three columns with a paste handler, and a user who pastes into it. */
class TablePasteFixture : public ::testing::Test
{
protected:
    TablePasteFixture();

    void show(QAbstractItemModel& shown);
    void click(int row, int column);
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /** Puts the text on the clipboard and presses the paste shortcut in the view. */
    void pressPaste(const QString& text);

    /** The texts of a model: cells separated by blanks, rows by slashes. */
    static std::string texts(const QAbstractItemModel& shown);
    std::string texts() const { return texts(model); }
    /** The last refusals, as "row,column:reason:text" separated by blanks. */
    std::string refusals() const { return m_refusals; }

    PickyModel model;
    QTableView view;
    ui::TablePasteHandler* handler; // the view's child
    int pastes = 0;
    QSize lastPaste; // columns, rows

private:
    std::string m_refusals;
};

} // namespace morvane::test
