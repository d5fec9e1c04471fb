// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/util/TableCopyFixture.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QEvent>
#include <QHeaderView>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>

#include <memory>
#include <ostream>

namespace {

using morvane::test::CellModel;
using TableCopyModelTest = morvane::test::TableCopyFixture;

std::unique_ptr<QStandardItemModel> people()
{
    auto model = std::make_unique<QStandardItemModel>(0, 2);
    const QStringList names = {"Dora", "anna", "Carl", "Bert"};
    for (const QString& name : names) {
        model->appendRow({new QStandardItem(name), new QStandardItem(QString::number(name.size()) + name.left(1))});
    }
    return model;
}

TEST_F(TableCopyModelTest, hiddenRowsAndColumnsInsideTheSelectionAreCopied)
{
    view.hideRow(1);
    view.hideColumn(2);
    select(0, 1, 2, 3);
    EXPECT_EQ(copied(), "r0c1\tr0c2\tr0c3\nr1c1\tr1c2\tr1c3\nr2c1\tr2c2\tr2c3");
}

TEST_F(TableCopyModelTest, aDragAcrossAHiddenRowCopiesItToo)
{
    view.hideRow(1);
    drag(0, 0, 2, 0);
    EXPECT_EQ(copied(), "r0c0\nr1c0\nr2c0");
}

TEST_F(TableCopyModelTest, movedColumnsAreCopiedInTheOrderOfTheModel)
{
    view.horizontalHeader()->moveSection(3, 0);
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_TRUE(copied().startsWith("r0c0\tr0c1\tr0c2\tr0c3\n"));
}

TEST_F(TableCopyModelTest, aDragAcrossAMovedColumnCopiesTheCellsUnderIt)
{
    view.horizontalHeader()->moveSection(3, 0);
    drag(0, 3, 0, 0);
    EXPECT_EQ(copied(), "r0c0\tr0c3");
}

TEST_F(TableCopyModelTest, coveredCellsOfASpanAreCopiedWhenTheyAreSelected)
{
    view.setSpan(0, 0, 2, 2);
    select(0, 0, 1, 1);
    EXPECT_EQ(copied(), "r0c0\tr0c1\nr1c0\tr1c1");
}

TEST_F(TableCopyModelTest, aClickedSpanCopiesWhatTheViewSelects)
{
    view.setSpan(1, 1, 2, 2);
    click(1, 1);
    EXPECT_EQ(copied(), morvane::test::textOfSortedIndexes(view));
}

TEST_F(TableCopyModelTest, aSortedAndFilteredProxyIsCopiedAsItShows)
{
    const auto source = people();
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(source.get());
    proxy.setSortCaseSensitivity(Qt::CaseInsensitive);
    proxy.setFilterRegularExpression("[ae]r|nn|or");
    proxy.sort(0, Qt::DescendingOrder);
    show(proxy);
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(copied(), "Dora\t4D\nCarl\t4C\nBert\t4B\nanna\t4a");
}

TEST_F(TableCopyModelTest, sortingAfterSelectingCopiesTheSameCellsInTheirNewOrder)
{
    const auto source = people();
    show(*source);
    click(0, 0);
    click(3, 0, Qt::ControlModifier);
    source->sort(0);
    EXPECT_EQ(copied(), "Bert\nDora");
}

TEST_F(TableCopyModelTest, filteringRowsAwayAfterSelectingLeavesTheRest)
{
    const auto source = people();
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(source.get());
    show(proxy);
    clickColumnHeader(0);
    proxy.setFilterFixedString("r");
    EXPECT_EQ(copied(), "Dora\nCarl\nBert");
}

TEST_F(TableCopyModelTest, insertedAndRemovedRowsShiftTheSelection)
{
    const auto source = people();
    show(*source);
    drag(1, 0, 3, 0);
    source->removeRow(2);
    source->insertRow(0, {new QStandardItem("new"), new QStandardItem("3n")});
    EXPECT_EQ(copied(), "anna\nBert");
}

TEST_F(TableCopyModelTest, aResetModelHasNothingSelected)
{
    const auto source = people();
    show(*source);
    press(Qt::Key_A, Qt::ControlModifier);
    source->clear();
    EXPECT_EQ(copied(), "");
}

TEST_F(TableCopyModelTest, aReplacedModelIsTheOneThatIsCopied)
{
    press(Qt::Key_A, Qt::ControlModifier);
    const auto source = people();
    show(*source);
    EXPECT_EQ(copied(), "");
    click(2, 0);
    EXPECT_EQ(copied(), "Carl");
}

TEST_F(TableCopyModelTest, aDestroyedModelGivesTheEmptyText)
{
    auto source = people();
    show(*source);
    press(Qt::Key_A, Qt::ControlModifier);
    source.reset();
    EXPECT_EQ(copied(), "");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(copied(), "");
}

TEST_F(TableCopyModelTest, aViewWhoseModelWasTakenAwayGivesTheEmptyText)
{
    press(Qt::Key_A, Qt::ControlModifier);
    view.setModel(nullptr);
    EXPECT_EQ(copied(), "");
}

TEST_F(TableCopyModelTest, aViewThatNeverHadAModelGivesTheEmptyText)
{
    QTableView bare;
    morvane::ui::TableCopyHandler bareHandler(bare);
    click(0, 0);
    copied();
    ASSERT_EQ(bare.selectionModel(), nullptr);
    bareHandler.copyToClipboard();
    EXPECT_EQ(morvane::test::clipboardText(), "");
}

TEST_F(TableCopyModelTest, aDeletedSelectionModelGivesTheEmptyText)
{
    click(0, 0);
    auto* const selectionModel = new QItemSelectionModel(&model, &view);
    view.setSelectionModel(selectionModel);
    delete selectionModel;
    ASSERT_EQ(view.selectionModel(), nullptr);
    handler->copyToClipboard();
    EXPECT_EQ(morvane::test::clipboardText(), "");
}

TEST_F(TableCopyModelTest, aSelectionInAnotherModelCountsAsNone)
{
    CellModel other(3, 3);
    model.cellFlags = [](int, int) { return Qt::ItemIsEnabled | Qt::ItemIsSelectable; };
    view.selectionModel()->setModel(&other);
    view.selectionModel()->select(other.index(1, 1), QItemSelectionModel::Select);
    handler->copyToClipboard();
    EXPECT_EQ(morvane::test::clipboardText(), "");
    view.selectionModel()->setModel(&model);
}

TEST_F(TableCopyModelTest, aSharedSelectionModelIsCopiedInEitherView)
{
    QTableView second;
    second.setModel(&model);
    second.setSelectionModel(view.selectionModel());
    second.selectRow(1);
    EXPECT_EQ(copied(), "r1c0\tr1c1\tr1c2\tr1c3");
}

TEST_F(TableCopyModelTest, rowsBelowARootItemAreCopied)
{
    QStandardItemModel tree;
    auto* const root = new QStandardItem("root");
    root->appendRow({new QStandardItem("a"), new QStandardItem("b")});
    root->appendRow({new QStandardItem("c"), new QStandardItem("d")});
    tree.appendRow(root);
    view.setModel(&tree);
    view.setRootIndex(root->index());
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(copied(), "a\tb\nc\td");
}

struct CellText
{
    const char* what;
    QVariant data;
    QString text;
};

void PrintTo(const CellText& c, std::ostream* out)
{
    *out << c.what;
}

class TableCopyModelCellTextTest : public morvane::test::TableCopyFixture,
                                   public ::testing::WithParamInterface<CellText>
{
};

TEST_P(TableCopyModelCellTextTest, isCopiedAsItIs)
{
    CellModel cells(1, 3, [](int, int column) { return column == 1 ? GetParam().data : QVariant("x"); });
    show(cells);
    clickRowHeader(0);
    EXPECT_EQ(copied(), "x\t" + GetParam().text + "\tx");
}

const QDateTime moment = QDateTime::fromString("2024-02-29T13:05:07Z", Qt::ISODate);

INSTANTIATE_TEST_SUITE_P(Cells, TableCopyModelCellTextTest,
    ::testing::Values(CellText{"Null", QVariant(), ""}, CellText{"NullText", QString(), ""},
        CellText{"EmptyText", "", ""}, CellText{"Blanks", "  a  ", "  a  "}, CellText{"Tab", "a\tb", "a\tb"},
        CellText{"LineFeeds", "a\nb\r\nc", "a\nb\r\nc"}, CellText{"Quotes", "\"a\"", "\"a\""},
        CellText{"Nul", QString::fromUtf8("a\0b", 3), QString::fromUtf8("a\0b", 3)},
        CellText{"Emoji", QString::fromUtf8("\xF0\x9F\x9A\x80"), QString::fromUtf8("\xF0\x9F\x9A\x80")},
        CellText{"LoneSurrogate", QString(QChar(0xD83D)), QString(QChar(0xD83D))}, CellText{"Integer", -42, "-42"},
        CellText{"LargeInteger", 9007199254740993LL, "9007199254740993"}, CellText{"Double", 0.1, "0.1"},
        CellText{"LargeDouble", 1e300, "1e+300"}, CellText{"NotANumber", qQNaN(), "nan"},
        CellText{"Bool", true, "true"}, CellText{"Date", moment.date(), "2024-02-29"},
        CellText{"Time", moment.time(), "13:05:07.000"}, CellText{"DateTime", moment, "2024-02-29T13:05:07.000Z"},
        CellText{"Bytes", QByteArray("\xC3\xA4"), "ä"}, CellText{"Character", QChar('q'), "q"},
        CellText{"List", QStringList({"a", "b"}), ""}, CellText{"Size", QSize(1, 2), ""}),
    [](const auto& test) { return test.param.what; });

TEST_F(TableCopyModelTest, anEmptyFirstCellStillTakesItsPlace)
{
    CellModel cells(2, 2, [](int row, int column) { return row == 1 && column == 1 ? QVariant("end") : QVariant(); });
    show(cells);
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(copied(), "\t\n\tend");
}

} // namespace
