// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/SelectionBands_p.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace morvane::ui {

namespace {

using BlockPointers = std::vector<const SelectionBlock*>;

bool startsFurtherLeft(const SelectionBlock* a, const SelectionBlock* b)
{
    return a->left < b->left;
}

std::vector<SelectionBlock> blocksOf(const QItemSelection& selection, const QAbstractItemModel& model)
{
    std::vector<SelectionBlock> blocks;
    blocks.reserve(static_cast<std::size_t>(selection.size()));
    for (const QItemSelectionRange& range : selection) {
        const QModelIndex topLeft = range.topLeft();
        if (topLeft.model() == &model) {
            const QModelIndex bottomRight = range.bottomRight();
            blocks.push_back({topLeft.row(), bottomRight.row(), topLeft.column(), bottomRight.column(), topLeft});
        }
    }
    return blocks;
}

constexpr int digitBits = 11;
constexpr std::size_t digitCount = std::size_t(1) << digitBits;

BlockPointers sortedByDigit(const BlockPointers& blocks, int shift)
{
    const auto digit = [shift](const SelectionBlock* block) {
        return (static_cast<unsigned>(block->top) >> shift) % digitCount;
    };
    std::array<std::size_t, digitCount + 1> places{};
    for (const SelectionBlock* const block : blocks) {
        ++places[digit(block) + 1];
    }
    std::partial_sum(places.begin(), places.end(), places.begin());
    BlockPointers sorted(blocks.size());
    for (const SelectionBlock* const block : blocks) {
        sorted[places[digit(block)]++] = block;
    }
    return sorted;
}

// A radix sort: comparing thousands of scattered ranges would take as long as reading their cells.
BlockPointers sortedByFirstRow(const std::vector<SelectionBlock>& blocks)
{
    int lastTop = 0;
    BlockPointers sorted;
    sorted.reserve(blocks.size());
    for (const SelectionBlock& block : blocks) {
        sorted.push_back(&block);
        lastTop = std::max(lastTop, block.top);
    }
    for (int shift = 0; shift < 32 && (static_cast<unsigned>(lastTop) >> shift) != 0; shift += digitBits) {
        sorted = sortedByDigit(sorted, shift);
    }
    return sorted;
}

} // namespace

SelectionBands::SelectionBands(const QItemSelection& selection, const QAbstractItemModel& model)
    : m_blocks(blocksOf(selection, model)), m_byFirstRow(sortedByFirstRow(m_blocks))
{
}

bool SelectionBands::advance()
{
    dropBlocksAbove(m_lastRow + 1);
    if (m_current.empty() && m_next == m_byFirstRow.end()) {
        return false;
    }
    m_firstRow = m_current.empty() ? (*m_next)->top : m_lastRow + 1;
    takeBlocksStartingAt(m_firstRow);
    m_lastRow = m_current.front()->bottom;
    for (const SelectionBlock* const block : m_current) {
        m_lastRow = std::min(m_lastRow, block->bottom);
    }
    if (m_next != m_byFirstRow.end()) {
        m_lastRow = std::min(m_lastRow, (*m_next)->top - 1);
    }
    return true;
}

bool SelectionBands::hasOverlaps() const
{
    const auto overlap = [](const SelectionBlock* a, const SelectionBlock* b) { return b->left <= a->right; };
    return std::adjacent_find(m_current.begin(), m_current.end(), overlap) != m_current.end();
}

void SelectionBands::dropBlocksAbove(int row)
{
    const auto isAbove = [row](const SelectionBlock* block) { return block->bottom < row; };
    m_current.erase(std::remove_if(m_current.begin(), m_current.end(), isAbove), m_current.end());
}

void SelectionBands::takeBlocksStartingAt(int row)
{
    const auto oldCount = static_cast<std::ptrdiff_t>(m_current.size());
    for (; m_next != m_byFirstRow.end() && (*m_next)->top == row; ++m_next) {
        m_current.push_back(*m_next);
    }
    const auto firstNew = m_current.begin() + oldCount;
    std::sort(firstNew, m_current.end(), startsFurtherLeft);
    std::inplace_merge(m_current.begin(), firstNew, m_current.end(), startsFurtherLeft);
}

} // namespace morvane::ui
