// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/CopiedTable_p.h"

#include "ui/qt/util/CellBlock_p.h"
#include "ui/qt/util/PastedNumber_p.h"
#include "ui/qt/util/SelectionWalk_p.h"

#include <algorithm>
#include <utility>

namespace morvane::ui {

namespace {

/** How many digits distinguish the number from others of its type; as a double it would have more. */
int digitsOf(float number)
{
    int digits = 6;
    while (digits < 9 && QString::number(static_cast<double>(number), 'g', digits).toFloat() != number) {
        ++digits;
    }
    return digits;
}

QString numberText(const QVariant& number, QLocale locale)
{
    // Some programs read digits in groups as text.
    locale.setNumberOptions(locale.numberOptions() | QLocale::OmitGroupSeparator);
    switch (number.userType()) {
    case QMetaType::Double:
        return locale.toString(number.toDouble(), 'g', QLocale::FloatingPointShortest);
    case QMetaType::Float:
        return locale.toString(number.toDouble(), 'g', digitsOf(number.toFloat()));
    case QMetaType::ULongLong:
        return locale.toString(number.toULongLong());
    default:
        return locale.toString(number.toLongLong());
    }
}

/** Collects the selected cells of each row with the numbers of their columns. */
class CellReader
{
public:
    struct Cell
    {
        int column;
        QString text;
    };
    struct Row
    {
        int row;
        std::vector<Cell> cells;
    };

    CellReader(const QAbstractItemModel& model, const CopiedTable::Rules& rules) : m_model(model), m_rules(rules) {}

    void row(int row)
    {
        if (rows.empty() || !rows.back().cells.empty()) {
            rows.emplace_back();
        }
        rows.back().row = row;
    }

    void cell(const QModelIndex& index)
    {
        rows.back().cells.push_back({index.column(), textOf(m_model.data(index, m_rules.role))});
    }

    void finish()
    {
        if (!rows.empty() && rows.back().cells.empty()) {
            rows.pop_back();
        }
    }

    std::vector<Row> rows;

private:
    QString textOf(const QVariant& data) const
    {
        return m_rules.numberLocale && isNumber(data) ? numberText(data, *m_rules.numberLocale) : data.toString();
    }

    const QAbstractItemModel& m_model;
    const CopiedTable::Rules& m_rules;
};

using Rows = std::vector<CellReader::Row>;

/** The columns with a selected cell, in ascending order. */
std::vector<int> columnsOf(const Rows& rows)
{
    std::vector<int> columns;
    for (const CellReader::Row& row : rows) {
        std::vector<int> both = columns;
        for (const CellReader::Cell& cell : row.cells) {
            if (!std::binary_search(columns.begin(), columns.end(), cell.column)) {
                both.push_back(cell.column);
            }
        }
        if (both.size() > columns.size()) {
            std::sort(both.begin(), both.end());
            both.erase(std::unique(both.begin(), both.end()), both.end());
            columns = std::move(both);
        }
    }
    return columns;
}

QString headerText(const QAbstractItemModel& model, int section, Qt::Orientation orientation)
{
    return model.headerData(section, orientation, Qt::DisplayRole).toString();
}

std::vector<QString> headerLine(const QAbstractItemModel& model, const std::vector<int>& columns, bool hasRowHeaders)
{
    std::vector<QString> line(hasRowHeaders ? 1 : 0);
    for (const int column : columns) {
        line.push_back(headerText(model, column, Qt::Horizontal));
    }
    return line;
}

/** The texts of a row below the columns; empty texts where no cell is selected. */
void appendAligned(std::vector<QString>& line, CellReader::Row& row, const std::vector<int>& columns)
{
    auto cell = row.cells.begin();
    for (const int column : columns) {
        line.emplace_back();
        for (; cell != row.cells.end() && cell->column == column; ++cell) {
            line.back() = std::move(cell->text);
        }
    }
}

void addLinesWithHeaders(CopiedTable& table, Rows& rows, const QAbstractItemModel& model)
{
    const std::vector<int> columns = columnsOf(rows);
    if (table.hasHeaderLine) {
        table.lines.push_back(headerLine(model, columns, table.hasRowHeaders));
    }
    for (CellReader::Row& row : rows) {
        std::vector<QString> line;
        if (table.hasRowHeaders) {
            line.push_back(headerText(model, row.row, Qt::Vertical));
        }
        appendAligned(line, row, columns);
        table.lines.push_back(std::move(line));
    }
}

void addPlainLines(CopiedTable& table, Rows& rows)
{
    for (CellReader::Row& row : rows) {
        std::vector<QString> line;
        line.reserve(row.cells.size());
        for (CellReader::Cell& cell : row.cells) {
            line.push_back(std::move(cell.text));
        }
        table.lines.push_back(std::move(line));
        row.cells = {}; // so that the memory of a large table is not needed twice
    }
}

/** With a plain line break, some programs begin another cell. */
QString htmlCell(const QString& text)
{
    QString html = text.toHtmlEscaped();
    html.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    html.replace(QLatin1Char('\n'), QLatin1String("<br style=\"mso-data-placement:same-cell\">"));
    return html;
}

} // namespace

CopiedTable copiedTable(
    const QItemSelection& selection, const QAbstractItemModel& model, const CopiedTable::Rules& rules)
{
    CellReader reader(model, rules);
    SelectionWalk<CellReader>(model, reader).visit(selection);
    reader.finish();
    CopiedTable table;
    table.hasHeaderLine = rules.columnHeaders && !reader.rows.empty();
    table.hasRowHeaders = rules.rowHeaders && !reader.rows.empty();
    if (rules.columnHeaders || rules.rowHeaders) {
        addLinesWithHeaders(table, reader.rows, model);
    } else {
        addPlainLines(table, reader.rows);
    }
    if (reader.rows.empty()) {
        table.lines.clear();
    }
    return table;
}

QString plainText(const CopiedTable& table, bool isQuoted)
{
    QString text;
    for (std::size_t line = 0; line < table.lines.size(); ++line) {
        text += line > 0 ? QStringLiteral("\n") : QString();
        const std::vector<QString>& texts = table.lines[line];
        for (std::size_t cell = 0; cell < texts.size(); ++cell) {
            text += cell > 0 ? QStringLiteral("\t") : QString();
            text += isQuoted ? quotedWhereNeeded(texts[cell]) : texts[cell];
        }
    }
    // Otherwise the line end before it would be taken for the end of the text.
    const bool endsWithEmptyLine = !table.lines.empty() && table.lines.back() == std::vector<QString>(1, QString());
    if (isQuoted && endsWithEmptyLine) {
        text += QLatin1String("\"\"");
    }
    text.squeeze();
    return text;
}

QString htmlText(const CopiedTable& table)
{
    // Many programs would take the bytes for another encoding, and several blanks for one.
    QString html = QStringLiteral("<meta http-equiv=\"content-type\" content=\"text/html; charset=utf-8\">"
                                  "<table style=\"white-space:pre-wrap\">");
    for (std::size_t line = 0; line < table.lines.size(); ++line) {
        html += QLatin1String("<tr>");
        for (std::size_t cell = 0; cell < table.lines[line].size(); ++cell) {
            const bool isHeader = (table.hasHeaderLine && line == 0) || (table.hasRowHeaders && cell == 0);
            html += isHeader ? QLatin1String("<th>") : QLatin1String("<td>");
            html += htmlCell(table.lines[line][cell]);
            html += isHeader ? QLatin1String("</th>") : QLatin1String("</td>");
        }
        html += QLatin1String("</tr>");
    }
    html += QLatin1String("</table>");
    html.squeeze();
    return html;
}

} // namespace morvane::ui
