// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Select cells and press Ctrl+C: the field below shows the text that a spreadsheet program would paste.

#include "ui/qt/util/TableCopyHandler.h"

#include <QApplication>
#include <QClipboard>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);

    QStandardItemModel readings(0, 3);
    readings.setHorizontalHeaderLabels({"Sensor", "Quantity", "Reading"});
    readings.appendRow({new QStandardItem("T1"), new QStandardItem("Temperature"), new QStandardItem("21.5")});
    readings.appendRow({new QStandardItem("T2"), new QStandardItem("Temperature"), new QStandardItem("22.1")});
    readings.appendRow({new QStandardItem("P1"), new QStandardItem("Pressure"), new QStandardItem("1013.2")});

    QWidget window;
    auto* const table = new QTableView;
    table->setModel(&readings);

    //! [copy]
    // This line adds the copy shortcut to the table. The table owns the handler.
    auto* const handler = new morvane::ui::TableCopyHandler(*table);

    // copyToClipboard() is a slot, so buttons and menu actions can call it, too.
    auto* const button = new QPushButton("&Copy");
    QObject::connect(button, &QPushButton::clicked, handler, &morvane::ui::TableCopyHandler::copyToClipboard);
    //! [copy]

    //! [options]
    // All of this is off initially.
    handler->setQuoting(true);           // a spreadsheet reads a cell with tabs or line ends as one cell
    handler->setNumberLocale(QLocale()); // numbers as the user's spreadsheet reads them
    handler->setKeepingClipboard(true);  // nothing selected: nothing copied
    handler->setContextMenu(true);       // with "Copy" and "Copy with Headers"
    //! [options]

    auto* const copied = new QPlainTextEdit;
    copied->setReadOnly(true);
    QClipboard* const clipboard = QApplication::clipboard();
    QObject::connect(clipboard, &QClipboard::dataChanged, copied, [=] { copied->setPlainText(clipboard->text()); });

    auto* const layout = new QVBoxLayout(&window);
    layout->addWidget(table);
    layout->addWidget(button);
    layout->addWidget(copied);
    window.setWindowTitle("Copying a table");
    window.resize(420, 400);
    window.show();
    return application.exec();
}
