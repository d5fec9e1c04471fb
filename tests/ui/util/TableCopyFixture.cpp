// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/util/TableCopyFixture.h"

#include "ui/util/LiteralSelectionText.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QtTest>

#include <ostream>

void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

namespace morvane::test {

QString clipboardText()
{
    return QGuiApplication::clipboard()->text();
}

QString textOfSortedIndexes(const QTableView& view)
{
    return textOfSortedIndexes(view.selectionModel()->selectedIndexes(), *view.model());
}

TableCopyFixture::TableCopyFixture() : model(5, 4), handler(new ui::TableCopyHandler(view))
{
    show(model);
}

void TableCopyFixture::show(QAbstractItemModel& shownModel)
{
    view.setModel(&shownModel);
    view.resize(600, 400);
    view.show();
    view.activateWindow();
    view.setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
}

void TableCopyFixture::click(int row, int column, Qt::KeyboardModifiers modifiers)
{
    QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers, view.visualRect(index(row, column)).center());
}

void TableCopyFixture::drag(int fromRow, int fromColumn, int toRow, int toColumn)
{
    const QPoint from = view.visualRect(index(fromRow, fromColumn)).center();
    const QPoint to = view.visualRect(index(toRow, toColumn)).center();
    QTest::mousePress(view.viewport(), Qt::LeftButton, Qt::NoModifier, from);
    QMouseEvent move(
        QEvent::MouseMove, to, view.viewport()->mapToGlobal(to), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &move);
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, Qt::NoModifier, to);
}

void TableCopyFixture::clickRowHeader(int row, Qt::KeyboardModifiers modifiers)
{
    const QHeaderView* const header = view.verticalHeader();
    const QPoint place(header->width() / 2, header->sectionViewportPosition(row) + header->sectionSize(row) / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, modifiers, place);
}

void TableCopyFixture::clickColumnHeader(int column, Qt::KeyboardModifiers modifiers)
{
    const QHeaderView* const header = view.horizontalHeader();
    const QPoint place(header->sectionViewportPosition(column) + header->sectionSize(column) / 2, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, modifiers, place);
}

void TableCopyFixture::press(int key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(&view, static_cast<Qt::Key>(key), modifiers);
}

void TableCopyFixture::select(int top, int left, int bottom, int right, QItemSelectionModel::SelectionFlags command)
{
    view.selectionModel()->select(QItemSelection(index(top, left), index(bottom, right)), command);
}

QString TableCopyFixture::copied()
{
    QGuiApplication::clipboard()->setText(QStringLiteral("(untouched)"));
    press(Qt::Key_C, Qt::ControlModifier);
    return clipboardText();
}

} // namespace morvane::test
