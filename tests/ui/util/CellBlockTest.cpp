// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/CellBlock_p.h"
#include "ui/util/LiteralCellBlock.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>

#include <iterator>
#include <random>

namespace {

using morvane::test::literalCellBlock;
using morvane::ui::CellBlock;
using morvane::ui::quotedWhereNeeded;
using morvane::ui::readCellBlock;

TEST(CellBlockTest, tabsSeparateCellsAndLineEndsEndRows)
{
    EXPECT_EQ(readCellBlock("a\tb\nc\td"), (CellBlock{{"a", "b"}, {"c", "d"}}));
    EXPECT_EQ(readCellBlock("a\tb\r\nc\td\r\n"), (CellBlock{{"a", "b"}, {"c", "d"}}));
    EXPECT_EQ(readCellBlock("a\rb\r"), (CellBlock{{"a"}, {"b"}}));
}

TEST(CellBlockTest, aLineEndAtTheEndBeginsNoRow)
{
    EXPECT_EQ(readCellBlock("a\n"), (CellBlock{{"a"}}));
    EXPECT_EQ(readCellBlock("a\n\n"), (CellBlock{{"a"}, {""}}));
    EXPECT_EQ(readCellBlock("a\n\r"), (CellBlock{{"a"}, {""}}));
}

TEST(CellBlockTest, anEmptyTextHasNoRowsAndALineEndIsOneEmptyCell)
{
    EXPECT_EQ(readCellBlock(""), CellBlock{});
    EXPECT_EQ(readCellBlock(QString()), CellBlock{});
    EXPECT_EQ(readCellBlock("\r\n"), (CellBlock{{""}}));
    EXPECT_EQ(readCellBlock("\t"), (CellBlock{{"", ""}}));
}

TEST(CellBlockTest, rowsMayHaveDifferentLengths)
{
    EXPECT_EQ(readCellBlock("a\tb\tc\nd\n\te"), (CellBlock{{"a", "b", "c"}, {"d"}, {"", "e"}}));
}

TEST(CellBlockTest, aQuotedCellHasTabsLineEndsAndQuotationMarks)
{
    EXPECT_EQ(readCellBlock("\"a\tb\"\tc"), (CellBlock{{"a\tb", "c"}}));
    EXPECT_EQ(readCellBlock("x\t\"two\nlines\"\ny"), (CellBlock{{"x", "two\nlines"}, {"y"}}));
    EXPECT_EQ(readCellBlock("\"say \"\"hello\"\"\"\r\n"), (CellBlock{{"say \"hello\""}}));
    EXPECT_EQ(readCellBlock("\"\"\t\"\"\"\""), (CellBlock{{"", "\""}}));
}

TEST(CellBlockTest, aQuotationMarkThatQuotesNoWholeCellIsACharacter)
{
    EXPECT_EQ(readCellBlock("5\" pipe\t7\""), (CellBlock{{"5\" pipe", "7\""}}));
    EXPECT_EQ(readCellBlock("\"a\" b\tc"), (CellBlock{{"\"a\" b", "c"}}));
    EXPECT_EQ(readCellBlock("\"not closed\tb\nc"), (CellBlock{{"\"not closed", "b"}, {"c"}}));
    EXPECT_EQ(readCellBlock("\""), (CellBlock{{"\""}}));
    EXPECT_EQ(readCellBlock("\"\"\""), (CellBlock{{"\"\"\""}}));
    EXPECT_EQ(readCellBlock(" \"a\tb\""), (CellBlock{{" \"a", "b\""}}));
}

TEST(CellBlockTest, onlyCellsThatWouldBeReadOtherwiseAreQuoted)
{
    EXPECT_EQ(quotedWhereNeeded("plain, with \"marks\""), "plain, with \"marks\"");
    EXPECT_EQ(quotedWhereNeeded(""), "");
    EXPECT_EQ(quotedWhereNeeded("a\tb"), "\"a\tb\"");
    EXPECT_EQ(quotedWhereNeeded("a\n\"b\""), "\"a\n\"\"b\"\"\"");
    EXPECT_EQ(quotedWhereNeeded("\"begins"), "\"\"\"begins\"");
    EXPECT_EQ(quotedWhereNeeded("a\rb"), "\"a\rb\"");
}

QString randomText(std::mt19937& engine, const char* letters, int longest)
{
    QString text;
    const auto count = static_cast<unsigned>(std::char_traits<char>::length(letters));
    for (unsigned length = engine() % static_cast<unsigned>(longest + 1); length > 0; --length) {
        text += QLatin1Char(letters[engine() % count]);
    }
    return text;
}

TEST(CellBlockTest, randomTextsGiveWhatThePatternsGive)
{
    std::mt19937 engine(17);
    int quotedCells = 0;
    for (int i = 0; i < 20000; ++i) {
        const QString text = randomText(engine, "ab\"\"\"\t\t\n\r", 24);
        const CellBlock block = readCellBlock(text);
        ASSERT_EQ(block, literalCellBlock(text)) << text.toStdString();
        for (const auto& row : block) {
            for (const QVariant& cell : row) {
                quotedCells += cell.toString().contains('\t') || cell.toString().contains('\n') ? 1 : 0;
            }
        }
    }
    EXPECT_GT(quotedCells, 1000);
}

TEST(CellBlockTest, whatIsQuotedWhereNeededIsReadAsOneCell)
{
    std::mt19937 engine(19);
    for (int i = 0; i < 20000; ++i) {
        const QString cell = randomText(engine, "a \"\"\t\n\r", 10);
        const QString next = randomText(engine, "a \"\"\t\n\r", 10);
        const QString text = quotedWhereNeeded(cell) + '\t' + quotedWhereNeeded(next) + "\nx";
        ASSERT_EQ(readCellBlock(text), (CellBlock{{cell, next}, {"x"}})) << text.toStdString();
    }
}

TEST(CellBlockTest, marksThatAreNeverClosedTakeLinearTime)
{
    const auto seconds = [](int cells) {
        QString text;
        for (int i = 0; i < cells; ++i) {
            text += "\"\"a\t\"\"\"\"a\n";
        }
        text.prepend('"');
        QElapsedTimer timer;
        timer.start();
        EXPECT_EQ(readCellBlock(text).size(), static_cast<std::size_t>(cells));
        return static_cast<double>(timer.nsecsElapsed()) / 1e9;
    };
    seconds(20000);
    // Quadratic time would be 100 times as long.
    EXPECT_LT(seconds(200000), 40 * seconds(20000) + 0.1);
}

} // namespace
