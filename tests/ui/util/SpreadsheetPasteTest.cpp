// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/util/TableCopyFixture.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QUrl>

namespace {

using SpreadsheetPasteTest = morvane::test::TableCopyFixture;

const QString filterName = QStringLiteral("Text - txt - csv (StarCalc)");

/** Lets LibreOffice Calc read the text as tab-separated cells. Returns the cells with semicolons between them, and with
 * quotation marks around cells that are not numbers. */
QString pastedIntoCalc(const QString& text)
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
    calc.start("soffice",
        {"-env:UserInstallation=" + QUrl::fromLocalFile(directory.filePath("profile")).toString(), "--headless",
            "--infilter=" + filterName + ":9,34,76,1", "--convert-to", "csv:" + filterName + ":59,34,76,1,,0,true",
            "--outdir", directory.filePath("out"), file.fileName()});
    if (!calc.waitForFinished(150000)) {
        return "soffice did not finish";
    }
    QFile result(directory.filePath("out/clipboard.csv"));
    return result.open(QFile::ReadOnly) ? QString::fromUtf8(result.readAll()) : QString::fromUtf8(calc.readAll());
}

TEST_F(SpreadsheetPasteTest, calcSeesTheSameCells)
{
    if (QStandardPaths::findExecutable("soffice").isEmpty()) {
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

} // namespace
