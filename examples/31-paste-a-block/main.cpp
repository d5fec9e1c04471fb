// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Copy cells in a spreadsheet program, click a cell here and press Ctrl+V. Ctrl+Z undoes it.

#include "ui/qt/util/TablePasteHandler.h"

#include <QApplication>
#include <QLabel>
#include <QShortcut>
#include <QStandardItemModel>
#include <QTableView>
#include <QUndoStack>
#include <QVBoxLayout>

using morvane::ui::TablePasteHandler;
using morvane::ui::TablePasteRefusal;

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QStandardItemModel calibration(3, 2);
    calibration.setHorizontalHeaderLabels({"Voltage", "Pressure"});

    QWidget window;
    auto* const table = new QTableView;
    table->setModel(&calibration);
    table->setCurrentIndex(calibration.index(0, 0));
    auto* const outcome = new QLabel("Paste a block from a spreadsheet.");
    auto* const stack = new QUndoStack(&window);

    //! [paste]
    // This line adds the paste shortcut to the table. The table owns the handler.
    auto* const handler = new TablePasteHandler(*table);
    handler->setAddingRows(true); // a longer block makes the table longer
    handler->setUndoStack(stack); // each paste is one step
    table->addAction(handler->pasteAction());
    table->setContextMenuPolicy(Qt::ActionsContextMenu);

    // All cells are written, or none.
    QObject::connect(handler, &TablePasteHandler::pasted, outcome,
        [=](int rows, int columns) { outcome->setText(QString("%1 x %2 cells").arg(rows).arg(columns)); });
    QObject::connect(handler, &TablePasteHandler::refused, outcome, [=](const QList<TablePasteRefusal>& cells) {
        const TablePasteRefusal& first = cells.first();
        outcome->setText(QString("Nothing was pasted. %1 cells cannot be written, the first in row %2, column %3.")
                             .arg(cells.size())
                             .arg(first.row + 1)
                             .arg(first.column + 1));
    });
    //! [paste]

    QObject::connect(new QShortcut(QKeySequence::Undo, &window), &QShortcut::activated, stack, &QUndoStack::undo);
    QObject::connect(new QShortcut(QKeySequence::Redo, &window), &QShortcut::activated, stack, &QUndoStack::redo);
    auto* const layout = new QVBoxLayout(&window);
    layout->addWidget(table);
    layout->addWidget(outcome);
    window.setWindowTitle("Pasting a block");
    window.resize(520, 300);
    window.show();
    return QApplication::exec();
}
