// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/util/TablePasteFixture.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTest>

namespace morvane::test {

namespace {

std::string nameOf(ui::TablePasteRefusal::Reason reason)
{
    using Reason = ui::TablePasteRefusal::Reason;
    switch (reason) {
    case Reason::OutsideTable:
        return "outside";
    case Reason::NotEditable:
        return "readonly";
    case Reason::NotANumber:
        return "nonumber";
    case Reason::RefusedByModel:
        return "model";
    }
    return "unknown";
}

} // namespace

TablePasteFixture::TablePasteFixture() : model(4, 3), handler(new ui::TablePasteHandler(view))
{
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 3; ++column) {
            model.setItem(row, column, new QStandardItem(QStringLiteral("%1%2").arg(row).arg(column)));
        }
    }
    QObject::connect(handler, &ui::TablePasteHandler::pasted, handler, [this](int rows, int columns) {
        ++pastes;
        lastPaste = QSize(columns, rows);
    });
    QObject::connect(
        handler, &ui::TablePasteHandler::refused, handler, [this](const QList<ui::TablePasteRefusal>& cells) {
            m_refusals.clear();
            for (const ui::TablePasteRefusal& cell : cells) {
                m_refusals += (m_refusals.empty() ? "" : " ") + std::to_string(cell.row) + ',' +
                              std::to_string(cell.column) + ':' + nameOf(cell.reason) + ':' + cell.text.toStdString();
            }
        });
    show(model);
}

void TablePasteFixture::show(QAbstractItemModel& shown)
{
    view.setModel(&shown);
    view.resize(600, 400);
    view.show();
    view.activateWindow();
    view.setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
}

void TablePasteFixture::click(int row, int column)
{
    const QModelIndex cell = view.model()->index(row, column);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, view.visualRect(cell).center());
}

void TablePasteFixture::press(int key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(&view, static_cast<Qt::Key>(key), modifiers);
}

void TablePasteFixture::pressPaste(const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
    press(Qt::Key_V, Qt::ControlModifier);
}

std::string TablePasteFixture::texts(const QAbstractItemModel& shown)
{
    std::string all;
    for (int row = 0; row < shown.rowCount(); ++row) {
        all += row > 0 ? "/" : "";
        for (int column = 0; column < shown.columnCount(); ++column) {
            all += (column > 0 ? " " : "") + shown.index(row, column).data().toString().toStdString();
        }
    }
    return all;
}

} // namespace morvane::test
