// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/TablePasteHandler.h"
#include "ui/util/TableCopyFixture.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QMimeData>
#include <QStandardItemModel>
#include <QTest>
#include <QTextDocument>
#include <QTextTable>

#include <memory>

namespace {

using morvane::test::clipboardText;
using morvane::ui::TableCopyHandler;

/** A table of measurements with headers, in which the user selects and copies. */
class TableCopyOptionsTest : public morvane::test::TableCopyFixture
{
protected:
    TableCopyOptionsTest() : items(3, 3)
    {
        items.setHorizontalHeaderLabels({"Sensor", "Value", "Note"});
        items.setVerticalHeaderLabels({"first", "second", "third"});
        const QVariant cells[3][3] = {{"T1", 1234.5, "a\tb"}, {"T2", -3, "two\nlines"}, {"T3", QVariant(), "\"x\""}};
        for (int row = 0; row < 3; ++row) {
            for (int column = 0; column < 3; ++column) {
                items.setData(items.index(row, column), cells[row][column], Qt::EditRole);
            }
        }
        show(items);
    }
    ~TableCopyOptionsTest() override
    {
        closeMenu();
        view.setModel(nullptr);
    }

    QMenu* openMenu(int row, int column, QContextMenuEvent::Reason reason = QContextMenuEvent::Mouse)
    {
        const QPoint place = view.visualRect(index(row, column)).center();
        QWidget* const receiver = reason == QContextMenuEvent::Mouse ? view.viewport() : static_cast<QWidget*>(&view);
        QContextMenuEvent event(reason, place, view.viewport()->mapToGlobal(place));
        QApplication::sendEvent(receiver, &event);
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }

    static void closeMenu()
    {
        if (QWidget* const menu = QApplication::activePopupWidget()) {
            menu->close();
        }
    }

    static QStringList entriesOf(const QMenu& menu)
    {
        QStringList entries;
        const QList<QAction*> actions = menu.actions();
        for (const QAction* const action : actions) {
            entries.append(action->isSeparator() ? QStringLiteral("-") : action->text().remove('&'));
        }
        return entries;
    }

    QStandardItemModel items;
};

TEST_F(TableCopyOptionsTest, nothingIsSwitchedOnInitially)
{
    EXPECT_EQ(handler->copiedHeaders(), TableCopyHandler::NoHeaders);
    EXPECT_EQ(handler->copiedValues(), TableCopyHandler::Values::Shown);
    EXPECT_FALSE(handler->isQuoting());
    EXPECT_FALSE(handler->isCopyingHtml());
    EXPECT_FALSE(handler->numberLocale().has_value());
    EXPECT_FALSE(handler->isKeepingClipboard());
    EXPECT_FALSE(handler->hasContextMenu());
    EXPECT_EQ(openMenu(0, 0), nullptr);
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(copied(), "T1\t1234.5\ta\tb\nT2\t-3\ttwo\nlines\nT3\t\t\"x\"");
    EXPECT_FALSE(QGuiApplication::clipboard()->mimeData()->hasHtml());
}

TEST_F(TableCopyOptionsTest, columnHeadersAreTheFirstLine)
{
    handler->setCopiedHeaders(TableCopyHandler::ColumnHeaders);
    drag(0, 0, 1, 1);
    EXPECT_EQ(copied(), "Sensor\tValue\nT1\t1234.5\nT2\t-3");
}

TEST_F(TableCopyOptionsTest, rowHeadersBeginTheirLines)
{
    handler->setCopiedHeaders(TableCopyHandler::RowHeaders);
    drag(0, 0, 1, 1);
    EXPECT_EQ(copied(), "first\tT1\t1234.5\nsecond\tT2\t-3");
    handler->setCopiedHeaders(TableCopyHandler::RowHeaders | TableCopyHandler::ColumnHeaders);
    EXPECT_EQ(copied(), "\tSensor\tValue\nfirst\tT1\t1234.5\nsecond\tT2\t-3");
    handler->setCopiedHeaders(TableCopyHandler::NoHeaders);
    EXPECT_EQ(copied(), "T1\t1234.5\nT2\t-3");
}

TEST_F(TableCopyOptionsTest, withHeadersEachCellIsBelowItsHeader)
{
    show(model);
    handler->setCopiedHeaders(TableCopyHandler::ColumnHeaders);
    click(0, 3);
    click(2, 0, Qt::ControlModifier);
    click(2, 3, Qt::ControlModifier);
    click(4, 1, Qt::ControlModifier);
    EXPECT_EQ(copied(), "1\t2\t4\n\t\tr0c3\nr2c0\t\tr2c3\n\tr4c1\t");
}

TEST_F(TableCopyOptionsTest, withHeadersACellIsNotRepeated)
{
    show(model);
    handler->setCopiedHeaders(TableCopyHandler::RowHeaders);
    QItemSelection selection(index(1, 0), index(1, 2));
    selection.append(QItemSelectionRange(index(1, 1), index(2, 2)));
    view.selectionModel()->select(selection, QItemSelectionModel::Select);
    EXPECT_EQ(copied(), "2\tr1c0\tr1c1\tr1c2\n3\t\tr2c1\tr2c2");
}

TEST_F(TableCopyOptionsTest, theActionCopiesWithHeadersOnlyOnce)
{
    QAction* const action = handler->copyWithHeadersAction();
    EXPECT_EQ(action, handler->copyWithHeadersAction());
    EXPECT_TRUE(action->shortcuts().isEmpty());
    drag(0, 0, 0, 1);
    action->trigger();
    EXPECT_EQ(clipboardText(), "Sensor\tValue\nT1\t1234.5");
    EXPECT_EQ(copied(), "T1\t1234.5");
    handler->setCopiedHeaders(TableCopyHandler::RowHeaders);
    handler->copyWithHeaders();
    EXPECT_EQ(clipboardText(), "\tSensor\tValue\nfirst\tT1\t1234.5");
}

TEST_F(TableCopyOptionsTest, theStoredValueMayDifferFromTheShownOne)
{
    class Celsius : public QStandardItemModel
    {
    public:
        QVariant data(const QModelIndex&, int role) const override
        {
            return role == Qt::DisplayRole ? QVariant("21 °C") : role == Qt::EditRole ? QVariant(21.25) : QVariant();
        }
    } celsius;
    celsius.setRowCount(1);
    celsius.setColumnCount(1);
    show(celsius);
    click(0, 0);
    EXPECT_EQ(copied(), "21 °C");
    handler->setCopiedValues(TableCopyHandler::Values::Stored);
    EXPECT_EQ(copied(), "21.25");
    handler->setNumberLocale(QLocale(QLocale::German));
    EXPECT_EQ(copied(), "21,25");
    view.setModel(nullptr);
}

TEST_F(TableCopyOptionsTest, onlyCellsThatNeedItAreQuoted)
{
    handler->setQuoting(true);
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(copied(), "T1\t1234.5\t\"a\tb\"\nT2\t-3\t\"two\nlines\"\nT3\t\t\"\"\"x\"\"\"");
}

TEST_F(TableCopyOptionsTest, aLastLineWithoutTextIsStillALineForThePasteHandler)
{
    handler->setQuoting(true);
    drag(1, 1, 2, 1);
    EXPECT_EQ(copied(), "-3\n\"\"");
    QStandardItemModel target(2, 1);
    target.setItem(1, new QStandardItem("old"));
    QTableView other;
    other.setModel(&target);
    other.setCurrentIndex(target.index(0, 0));
    morvane::ui::TablePasteHandler pasting(other);
    EXPECT_TRUE(pasting.pasteFromClipboard());
    EXPECT_EQ(target.index(1, 0).data().toString(), "");
}

TEST_F(TableCopyOptionsTest, whatIsCopiedWithQuotationMarksIsPastedUnchanged)
{
    handler->setQuoting(true);
    QStandardItemModel target(3, 3);
    QTableView other;
    other.setModel(&target);
    other.setCurrentIndex(target.index(0, 0));
    morvane::ui::TablePasteHandler pasting(other);
    const QStringList texts = {"", "\"", "\"\"", "a\"b", "\t", "\n", "\r\n", "x\ty", " blank ", "\"a\"\tb", "ü 🚀"};
    for (int shift = 0; shift < texts.size(); ++shift) {
        for (int cell = 0; cell < 9; ++cell) {
            items.setData(items.index(cell / 3, cell % 3), texts[(cell + shift) % texts.size()], Qt::EditRole);
        }
        press(Qt::Key_A, Qt::ControlModifier);
        press(Qt::Key_C, Qt::ControlModifier);
        ASSERT_TRUE(pasting.pasteFromClipboard());
        for (int cell = 0; cell < 9; ++cell) {
            EXPECT_EQ(target.index(cell / 3, cell % 3).data().toString(), texts[(cell + shift) % texts.size()]);
        }
    }
}

TEST_F(TableCopyOptionsTest, htmlHasTheSameCellsBesideTheText)
{
    handler->setCopyingHtml(true);
    handler->setCopiedHeaders(TableCopyHandler::ColumnHeaders);
    items.setData(items.index(0, 0), "a < b & \"c\"", Qt::EditRole);
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(copied().section('\n', 0, 0), "Sensor\tValue\tNote");
    const QString html = QGuiApplication::clipboard()->mimeData()->html();
    QTextDocument document;
    document.setHtml(html);
    auto* const table = qobject_cast<QTextTable*>(document.rootFrame()->childFrames().value(0));
    ASSERT_NE(table, nullptr);
    ASSERT_EQ(table->rows(), 4);
    ASSERT_EQ(table->columns(), 3);
    const auto cell = [table](int row, int column) {
        return table->cellAt(row, column).firstCursorPosition().block().text();
    };
    EXPECT_EQ(cell(0, 0), "Sensor");
    EXPECT_EQ(cell(1, 0), "a < b & \"c\"");
    EXPECT_EQ(cell(1, 1), "1234.5");
    EXPECT_EQ(cell(2, 2), QString("two") + QChar(QChar::LineSeparator) + "lines");
    EXPECT_EQ(html.count("<th>"), 3);
    EXPECT_EQ(html.count("<td>"), 9);
}

TEST_F(TableCopyOptionsTest, numbersAreWrittenInTheLocaleAndTextsAreNot)
{
    handler->setNumberLocale(QLocale(QLocale::German, QLocale::Germany));
    items.setData(items.index(1, 0), "1.5", Qt::EditRole);
    items.setData(items.index(1, 1), 1234567890123LL, Qt::EditRole);
    items.setData(items.index(2, 1), 0.1f, Qt::EditRole);
    items.setData(items.index(2, 0), true, Qt::EditRole);
    drag(0, 0, 2, 1);
    EXPECT_EQ(copied(), "T1\t1234,5\n1.5\t1234567890123\ntrue\t0,1");
}

TEST_F(TableCopyOptionsTest, everyDigitOfANumberIsWritten)
{
    const QLocale german(QLocale::German, QLocale::Germany);
    handler->setNumberLocale(german);
    for (const double number : {0.1, 1.0 / 3, 1e300, -2.5e-300, 123456789.125, 0.0}) {
        items.setData(items.index(0, 1), number, Qt::EditRole);
        click(0, 1);
        EXPECT_EQ(german.toDouble(copied()), number) << copied().toStdString();
    }
}

TEST_F(TableCopyOptionsTest, withNothingSelectedTheClipboardMayStay)
{
    EXPECT_EQ(copied(), "");
    handler->setKeepingClipboard(true);
    EXPECT_EQ(copied(), "(untouched)");
    handler->copyWithHeaders();
    EXPECT_EQ(clipboardText(), "(untouched)");
    click(2, 1); // an empty cell
    EXPECT_EQ(copied(), "");
    view.clearSelection();
    EXPECT_EQ(copied(), "(untouched)");
    view.setModel(nullptr);
    EXPECT_EQ(copied(), "(untouched)");
}

TEST_F(TableCopyOptionsTest, theContextMenuCopiesWithAndWithoutHeaders)
{
    handler->setContextMenu(true);
    drag(0, 0, 0, 1);
    QMenu* menu = openMenu(0, 0);
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(entriesOf(*menu), QStringList({"Copy", "Copy with Headers"}));
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
    EXPECT_EQ(clipboardText(), "T1\t1234.5");
    menu = openMenu(0, 0, QContextMenuEvent::Keyboard);
    ASSERT_NE(menu, nullptr);
    QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(menu->actions().at(1)).center());
    EXPECT_EQ(clipboardText(), "Sensor\tValue\nT1\t1234.5");
}

TEST_F(TableCopyOptionsTest, theContextMenuHasTheActionsOfTheViewAndNothingToCopyWithoutSelection)
{
    handler->setContextMenu(true);
    morvane::ui::TablePasteHandler pasting(view);
    view.addAction(pasting.pasteAction());
    QGuiApplication::clipboard()->setText("pasted");
    view.setCurrentIndex(index(0, 0));
    view.clearSelection();
    QMenu* const menu = openMenu(0, 0);
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(entriesOf(*menu), QStringList({"Copy", "Copy with Headers", "-", "Paste"}));
    EXPECT_FALSE(menu->actions().at(0)->isEnabled());
    EXPECT_FALSE(menu->actions().at(1)->isEnabled());
    QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(menu->actions().at(3)).center());
    EXPECT_EQ(items.index(0, 0).data().toString(), "pasted");
}

TEST_F(TableCopyOptionsTest, theContextMenuGoesWhenItIsSwitchedOffAndThePolicyComesBack)
{
    view.setContextMenuPolicy(Qt::NoContextMenu);
    handler->setContextMenu(true);
    handler->setContextMenu(true);
    EXPECT_TRUE(handler->hasContextMenu());
    handler->setContextMenu(false);
    EXPECT_EQ(view.contextMenuPolicy(), Qt::NoContextMenu);
    EXPECT_EQ(openMenu(0, 0), nullptr);
}

TEST_F(TableCopyOptionsTest, aHandlerThatIsDeletedTakesItsMenuWithIt)
{
    view.setContextMenuPolicy(Qt::ActionsContextMenu);
    handler->setContextMenu(true);
    ASSERT_NE(openMenu(0, 0), nullptr);
    delete handler;
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (menu) {
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
    }
    closeMenu();
    EXPECT_EQ(view.contextMenuPolicy(), Qt::ActionsContextMenu);
    EXPECT_EQ(openMenu(0, 0), nullptr);
}

} // namespace
