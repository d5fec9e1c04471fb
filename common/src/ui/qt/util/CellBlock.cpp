// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/CellBlock_p.h"

#include <algorithm>

namespace morvane::ui {

namespace {

using Size = decltype(QString().size()); // another type in Qt 6

const QLatin1Char quotationMark('"');
const QLatin1Char tab('\t');

bool isLineEnd(QChar character)
{
    return character == QLatin1Char('\n') || character == QLatin1Char('\r');
}

bool endsCell(QChar character)
{
    return character == tab || isLineEnd(character);
}

class BlockReader
{
public:
    explicit BlockReader(const QString& text) : m_text(text), m_end(text.size()) {}

    CellBlock read()
    {
        CellBlock block;
        while (m_at < m_end) {
            // Most blocks are rectangles.
            const std::size_t width = block.empty() ? 1 : block.back().size();
            block.emplace_back().reserve(width);
            readRow(block.back());
        }
        return block;
    }

private:
    void readRow(std::vector<QVariant>& row)
    {
        row.emplace_back(readCell());
        while (m_at < m_end && m_text.at(m_at) == tab) {
            ++m_at;
            row.emplace_back(readCell());
        }
        skipLineEnd();
    }

    QString readCell()
    {
        const Size closing = m_at < m_end && m_text.at(m_at) == quotationMark ? closingMark() : -1;
        if (closing < 0) {
            return readPlainCell();
        }
        QString cell = m_text.mid(m_at + 1, closing - m_at - 1);
        cell.replace(QLatin1String("\"\""), QLatin1String("\""));
        m_at = closing + 1;
        return cell;
    }

    QString readPlainCell()
    {
        const Size begin = m_at;
        const QChar* const data = m_text.constData();
        m_at = static_cast<Size>(std::find_if(data + begin, data + m_end, endsCell) - data);
        return QString(data + begin, m_at - begin);
    }

    /** Where the quoted cell at the current position ends, -1 if it is not quoted. */
    Size closingMark() const
    {
        Size mark = m_text.indexOf(quotationMark, m_at + 1);
        while (mark >= 0 && mark + 1 < m_end && m_text.at(mark + 1) == quotationMark) {
            mark = m_text.indexOf(quotationMark, mark + 2);
        }
        const bool isAtEnd = mark >= 0 && (mark + 1 == m_end || endsCell(m_text.at(mark + 1)));
        return isAtEnd ? mark : -1;
    }

    void skipLineEnd()
    {
        const bool isReturn = m_at < m_end && m_text.at(m_at) == QLatin1Char('\r');
        m_at += isReturn ? 1 : 0;
        m_at += m_at < m_end && m_text.at(m_at) == QLatin1Char('\n') ? 1 : 0;
    }

    const QString m_text;
    const Size m_end;
    Size m_at = 0;
};

} // namespace

CellBlock readCellBlock(const QString& text)
{
    return BlockReader(text).read();
}

QString quotedWhereNeeded(const QString& text)
{
    if (!text.startsWith(quotationMark) && std::none_of(text.begin(), text.end(), endsCell)) {
        return text;
    }
    QString inner = text;
    return quotationMark + inner.replace(QLatin1String("\""), QLatin1String("\"\"")) + quotationMark;
}

} // namespace morvane::ui
