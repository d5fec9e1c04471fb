#include "ui/qt/util/SelectionText.h"

#include "ui/qt/util/DelayedWaitCursor.h"

#include <QAbstractItemModel>

#include <algorithm>
#include <vector>

namespace morvane::ui {

namespace {

/** A selected range in plain numbers: reading them from a QItemSelectionRange goes through persistent indexes. */
struct Block
{
    int top;
    int bottom;
    int left;
    int right;
    QModelIndex parent;
};

bool startsEarlier(const Block& a, const Block& b)
{
    return a.top != b.top ? a.top < b.top : a.left < b.left;
}

std::vector<Block> blocksByFirstRow(const QItemSelection& selection, const QAbstractItemModel& model)
{
    std::vector<Block> blocks;
    blocks.reserve(static_cast<std::size_t>(selection.size()));
    for (const QItemSelectionRange& range : selection) {
        if (range.isValid() && range.model() == &model) {
            blocks.push_back({range.top(), range.bottom(), range.left(), range.right(), range.parent()});
        }
    }
    std::sort(blocks.begin(), blocks.end(), startsEarlier);
    return blocks;
}

/** The blocks that cross one row, by first column. They stay the same for as many rows as possible, a band. */
class Band
{
public:
    explicit Band(const std::vector<Block>& blocks) : m_next(blocks.begin()), m_end(blocks.end()) {}

    /** Moves on to the rows below; false when there are none. */
    bool advance()
    {
        const int row = m_lastRow + 1;
        m_blocks.erase(
            std::remove_if(m_blocks.begin(), m_blocks.end(), [row](const Block* block) { return block->bottom < row; }),
            m_blocks.end());
        if (m_blocks.empty() && m_next == m_end) {
            return false;
        }
        m_firstRow = m_blocks.empty() ? m_next->top : row;
        takeStartingBlocks();
        m_lastRow = m_next == m_end ? m_blocks.front()->bottom : m_next->top - 1;
        for (const Block* const block : m_blocks) {
            m_lastRow = std::min(m_lastRow, block->bottom);
        }
        return true;
    }

    int firstRow() const { return m_firstRow; }
    int lastRow() const { return m_lastRow; }
    const std::vector<const Block*>& blocks() const { return m_blocks; }

    bool hasOverlaps() const
    {
        return std::adjacent_find(m_blocks.begin(), m_blocks.end(),
                   [](const Block* a, const Block* b) { return b->left <= a->right; }) != m_blocks.end();
    }

private:
    void takeStartingBlocks()
    {
        const auto oldCount = static_cast<std::ptrdiff_t>(m_blocks.size());
        for (; m_next != m_end && m_next->top == m_firstRow; ++m_next) {
            m_blocks.push_back(&*m_next);
        }
        if (oldCount > 0) {
            std::inplace_merge(m_blocks.begin(), m_blocks.begin() + oldCount, m_blocks.end(),
                [](const Block* a, const Block* b) { return a->left < b->left; });
        }
    }

    std::vector<Block>::const_iterator m_next;
    std::vector<Block>::const_iterator m_end;
    std::vector<const Block*> m_blocks;
    int m_firstRow = 0;
    int m_lastRow = -1;
};

class Writer
{
public:
    explicit Writer(const QAbstractItemModel& model) : m_model(model) {}

    void append(const Band& band)
    {
        const bool inOrder = !band.hasOverlaps();
        for (int row = band.firstRow(); row <= band.lastRow(); ++row) {
            m_separator = m_separator == Separator::none ? Separator::none : Separator::row;
            if (inOrder) {
                appendRow(row, band.blocks());
            } else {
                appendOverlappingRow(row, band.blocks());
            }
        }
    }

    QString takeText()
    {
        // It may stay on the clipboard for hours, up to twice as large as need be.
        m_text.squeeze();
        return std::move(m_text);
    }

private:
    enum class Separator
    {
        none,
        row,
        cell
    };

    void appendRow(int row, const std::vector<const Block*>& blocks)
    {
        for (const Block* const block : blocks) {
            for (int column = block->left; column <= block->right; ++column) {
                appendCell(m_model.index(row, column, block->parent));
            }
        }
    }

    void appendOverlappingRow(int row, const std::vector<const Block*>& blocks)
    {
        m_rowIndexes.clear();
        for (const Block* const block : blocks) {
            for (int column = block->left; column <= block->right; ++column) {
                m_rowIndexes.push_back(m_model.index(row, column, block->parent));
            }
        }
        std::sort(m_rowIndexes.begin(), m_rowIndexes.end());
        for (const QModelIndex& index : m_rowIndexes) {
            appendCell(index);
        }
    }

    void appendCell(const QModelIndex& index)
    {
        m_waitCursor.step();
        constexpr Qt::ItemFlags wanted = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
        if ((m_model.flags(index) & wanted) != wanted) {
            return;
        }
        if (m_separator != Separator::none) {
            m_text += m_separator == Separator::row ? QLatin1Char('\n') : QLatin1Char('\t');
        }
        m_separator = Separator::cell;
        appendText(m_model.data(index, Qt::DisplayRole));
    }

    void appendText(const QVariant& data)
    {
        if (data.userType() == QMetaType::QString) {
            m_text += *static_cast<const QString*>(data.constData());
        } else {
            m_text += data.toString();
        }
    }

    const QAbstractItemModel& m_model;
    QString m_text;
    Separator m_separator = Separator::none; // due before the next cell
    std::vector<QModelIndex> m_rowIndexes;
    DelayedWaitCursor m_waitCursor;
};

} // namespace

QString selectionText(const QItemSelection& selection, const QAbstractItemModel& model)
{
    const std::vector<Block> blocks = blocksByFirstRow(selection, model);
    Band band(blocks);
    Writer writer(model);
    while (band.advance()) {
        writer.append(band);
    }
    return writer.takeText();
}

} // namespace morvane::ui
