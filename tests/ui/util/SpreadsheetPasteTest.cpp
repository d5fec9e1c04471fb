// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/TablePasteHandler.h"
#include "ui/util/TableCopyFixture.h"

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QStandardItemModel>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QUrl>

namespace {

using SpreadsheetPasteTest = morvane::test::TableCopyFixture;

const QString filterName = QStringLiteral("Text - txt - csv (StarCalc)");

bool hasCalc()
{
    return !QStandardPaths::findExecutable("soffice").isEmpty();
}

/** Lets LibreOffice Calc read the text as tab-separated cells, and write them as the tokens of its filter say. */
QString throughCalc(const QString& text, const QString& tokens)
{
    const QTemporaryDir directory;
    QFile file(directory.filePath("clipboard.tsv"));
    if (!file.open(QFile::WriteOnly)) {
        return "cannot write the text to a file";
    }
    file.write(text.toUtf8());
    file.close();

    QProcess calc;
    calc.setProcessChannelMode(QProcess::MergedChannels);
    // Separator 9 is the tab, 59 the semicolon; 34 the quotation mark; 76 is UTF-8.
    calc.start(
        "soffice", {"-env:UserInstallation=" + QUrl::fromLocalFile(directory.filePath("profile")).toString(),
                       "--headless", "--infilter=" + filterName + ":9,34,76,1", "--convert-to",
                       "csv:" + filterName + ":" + tokens, "--outdir", directory.filePath("out"), file.fileName()});
    if (!calc.waitForFinished(150000)) {
        return "soffice did not finish";
    }
    QFile result(directory.filePath("out/clipboard.csv"));
    return result.open(QFile::ReadOnly) ? QString::fromUtf8(result.readAll()) : QString::fromUtf8(calc.readAll());
}

/** The cells with semicolons between them, and with quotation marks around cells that are not numbers. */
QString pastedIntoCalc(const QString& text)
{
    return throughCalc(text, "59,34,76,1,,0,true");
}

/** The text that Calc writes for the same cells when they are copied there, as tab-separated text. */
QString pastedAndCopiedInCalc(const QString& text)
{
    return throughCalc(text, "9,34,76,1,,0,false");
}

TEST_F(SpreadsheetPasteTest, calcSeesTheSameCells)
{
    if (!hasCalc()) {
        GTEST_SKIP() << "LibreOffice Calc (soffice) is not installed";
    }
    const QStringList rows[] = {{"Sensor", "Wert", "Größe in mm", "🚀"}, {"T1", "21.5", "-3", "a, b"},
        {"", "0.001", "", "ends here"}, {"two words", "", "", "1"}};
    morvane::test::CellModel cells(4, 4, [&rows](int row, int column) { return rows[row][column]; });
    show(cells);
    press(Qt::Key_A, Qt::ControlModifier);

    EXPECT_EQ(pastedIntoCalc(copied()), "\"Sensor\";\"Wert\";\"Größe in mm\";\"🚀\"\n"
                                        "\"T1\";21.5;-3;\"a, b\"\n"
                                        ";0.001;;\"ends here\"\n"
                                        "\"two words\";;;1\n");
}

TEST_F(SpreadsheetPasteTest, calcSeesQuotedCellsAsOneCell)
{
    if (!hasCalc()) {
        GTEST_SKIP() << "LibreOffice Calc (soffice) is not installed";
    }
    const QStringList rows[] = {{"a\tb", "two\nlines"}, {"\"quoted\"", "say \"hello\""}};
    morvane::test::CellModel cells(2, 2, [&rows](int row, int column) { return rows[row][column]; });
    show(cells);
    handler->setQuoting(true);
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(pastedIntoCalc(copied()), "\"a\tb\";\"two\nlines\"\n"
                                        "\"\"\"quoted\"\"\";\"say \"\"hello\"\"\"\n");
}

TEST_F(SpreadsheetPasteTest, whatIsPastedIntoCalcAndCopiedThereIsPastedHereUnchanged)
{
    if (!hasCalc()) {
        GTEST_SKIP() << "LibreOffice Calc (soffice) is not installed";
    }
    const QStringList texts = {"Sensor", "Größe in mm", "🚀", "a\tb", "two\nlines", "say \"hello\"", "\"quoted\"",
        "21.5", "-3", "a, b", "semi;colon", "x"};
    morvane::test::CellModel cells(4, 3, [&texts](int row, int column) { return texts[3 * row + column]; });
    show(cells);
    handler->setQuoting(true);
    press(Qt::Key_A, Qt::ControlModifier);
    const QString back = pastedAndCopiedInCalc(copied());

    QStandardItemModel target(4, 3);
    show(target);
    view.setCurrentIndex(target.index(0, 0));
    morvane::ui::TablePasteHandler pasting(view);
    QGuiApplication::clipboard()->setText(back);
    press(Qt::Key_V, Qt::ControlModifier);
    for (int cell = 0; cell < texts.size(); ++cell) {
        EXPECT_EQ(target.index(cell / 3, cell % 3).data().toString(), texts[cell]) << back.toStdString();
    }
    view.setModel(nullptr);
}

} // namespace
