// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/SelectionText_p.h"

#include "ui/qt/util/DelayedWaitCursor_p.h"
#include "ui/qt/util/SelectionBands_p.h"

#include <QAbstractItemModel>

#include <algorithm>
#include <vector>

namespace morvane::ui {

namespace {

class Writer
{
public:
    explicit Writer(const QAbstractItemModel& model) : m_model(model) {}

    void append(const SelectionBands& bands)
    {
        const bool inOrder = !bands.hasOverlaps();
        for (int row = bands.firstRow(); row <= bands.lastRow(); ++row) {
            m_separator = m_separator == Separator::none ? Separator::none : Separator::row;
            if (inOrder) {
                appendRow(row, bands.blocks());
            } else {
                appendOverlappingRow(row, bands.blocks());
            }
        }
    }

    QString takeText()
    {
        // The clipboard may keep the text for hours, and its buffer may be twice as large as the text.
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

    template <typename Action>
    void forEachCell(const SelectionBlock& block, int row, Action action)
    {
        if (block.left == block.right && block.top == row) {
            action(block.topLeft); // faster than asking the model, and there may be thousands of single cells
            return;
        }
        const QModelIndex parent = block.topLeft.parent();
        for (int column = block.left; column <= block.right; ++column) {
            action(m_model.index(row, column, parent));
        }
    }

    void appendRow(int row, const std::vector<const SelectionBlock*>& blocks)
    {
        for (const SelectionBlock* const block : blocks) {
            forEachCell(*block, row, [this](const QModelIndex& index) { appendCell(index); });
        }
    }

    void appendOverlappingRow(int row, const std::vector<const SelectionBlock*>& blocks)
    {
        m_rowIndexes.clear();
        for (const SelectionBlock* const block : blocks) {
            forEachCell(*block, row, [this](const QModelIndex& index) { m_rowIndexes.push_back(index); });
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
    Separator m_separator = Separator::none; // written before the next cell
    std::vector<QModelIndex> m_rowIndexes;
    DelayedWaitCursor m_waitCursor;
};

} // namespace

QString selectionText(const QItemSelection& selection, const QAbstractItemModel& model)
{
    SelectionBands bands(selection, model);
    Writer writer(model);
    while (bands.advance()) {
        writer.append(bands);
    }
    return writer.takeText();
}

} // namespace morvane::ui
