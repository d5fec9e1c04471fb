// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Page.h"
#include "ui/qt/util/TablePasteRefusal.h"

class QCheckBox;
class QPushButton;
class QStandardItemModel;
class QTableView;
class QUndoStack;

namespace morvane::ui {
class TableCopyHandler;
class TablePasteHandler;
} // namespace morvane::ui

namespace gallery {

class InlineNote;

/** A table of calibration points into which blocks are pasted from a spreadsheet, and from which they are copied. */
class TablePastePage : public Page
{
    Q_OBJECT

public:
    TablePastePage();

    std::vector<TourStep> tourSteps(const TourWorkspace& workspace) override;

private:
    enum Column
    {
        Point,
        Voltage,
        Pressure,
        ColumnCount
    };

    void fillModel();
    void prepareTable();
    void preparePasting();
    void prepareCopying();
    QLayout* makeButtons();
    void showRefusals(const QList<morvane::ui::TablePasteRefusal>& cells);

    QStandardItemModel* m_points;
    QTableView* m_table;
    QUndoStack* m_undoStack;
    morvane::ui::TablePasteHandler* m_pasting;
    morvane::ui::TableCopyHandler* m_copying;
    InlineNote* m_note;
    QCheckBox* m_addRows;
    QPushButton* m_undo;
    QPushButton* m_redo;
    QPushButton* m_copyWithHeaders;
};

} // namespace gallery
