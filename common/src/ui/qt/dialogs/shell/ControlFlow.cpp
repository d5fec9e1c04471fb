// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/shell/ControlFlow_p.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace morvane::ui {

ControlFlow::ControlFlow(QWidget* parent) : QLayout(parent) {}

ControlFlow::~ControlFlow()
{
    for (const Cell& cell : m_cells) {
        delete cell.item;
    }
}

void ControlFlow::addCell(QWidget& cell, bool takesWholeLine)
{
    addWidget(&cell);
    m_cells.back().takesWholeLine = takesWholeLine;
}

void ControlFlow::addItem(QLayoutItem* item)
{
    m_cells.push_back({item, false});
    invalidate();
}

int ControlFlow::count() const
{
    return static_cast<int>(m_cells.size());
}

QLayoutItem* ControlFlow::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_cells[static_cast<std::size_t>(index)].item : nullptr;
}

QLayoutItem* ControlFlow::takeAt(int index)
{
    QLayoutItem* const item = itemAt(index);
    if (item) {
        m_cells.erase(m_cells.begin() + index);
        invalidate();
    }
    return item;
}

int ControlFlow::heightForWidth(int width) const
{
    const auto known = m_heights.find(width);
    if (known != m_heights.end()) {
        return known->second;
    }
    const QMargins margins = contentsMargins();
    const auto lines = linesFor(width - margins.left() - margins.right());
    int height = margins.top() + margins.bottom() + std::max(0, static_cast<int>(lines.size()) - 1) * gap(Qt::Vertical);
    for (const Line& line : lines) {
        height += line.height;
    }
    m_heights[width] = height;
    return height;
}

void ControlFlow::invalidate()
{
    m_heights.clear();
    m_minimumSize = QSize();
    QLayout::invalidate();
}

QSize ControlFlow::minimumSize() const
{
    if (!m_minimumSize.isValid()) {
        m_minimumSize = QSize(0, 0);
        for (const Cell& cell : m_cells) {
            m_minimumSize = cell.item->isEmpty() ? m_minimumSize : m_minimumSize.expandedTo(cell.item->minimumSize());
        }
    }
    const QMargins margins = contentsMargins();
    return m_minimumSize + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

QSize ControlFlow::sizeHint() const
{
    QSize size;
    for (const Cell& cell : m_cells) {
        size = cell.item->isEmpty() ? size : size.expandedTo(cell.item->sizeHint());
    }
    const QMargins margins = contentsMargins();
    const int width = size.width() + margins.left() + margins.right();
    return {width, heightForWidth(width)};
}

void ControlFlow::setGeometry(const QRect& rectangle)
{
    QLayout::setGeometry(rectangle);
    const QRect room = rectangle.marginsRemoved(contentsMargins());
    const Qt::LayoutDirection direction = parentWidget()->layoutDirection();
    int y = room.top();
    for (const Line& line : linesFor(room.width())) {
        for (const auto& [item, place] : line.cells) {
            // A cell is centred beside others of about its height, and at the top beside a list.
            const int above = line.height <= 2 * place.height() ? (line.height - place.height()) / 2 : 0;
            const QRect cell = place.translated(room.left(), y + above);
            item->setGeometry(QStyle::visualRect(direction, room, cell));
        }
        y += line.height + gap(Qt::Vertical);
    }
}

std::vector<ControlFlow::Line> ControlFlow::linesFor(int width) const
{
    std::vector<Line> lines;
    int x = 0;
    bool isFull = true;
    for (const Cell& cell : m_cells) {
        if (cell.item->isEmpty()) {
            continue;
        }
        const QSize size = sizeOf(cell, width);
        if (isFull || cell.takesWholeLine || x + size.width() > width) {
            lines.emplace_back();
            x = 0;
        }
        lines.back().cells.emplace_back(cell.item, QRect(QPoint(x, 0), size));
        lines.back().height = std::max(lines.back().height, size.height());
        x += size.width() + gap(Qt::Horizontal);
        isFull = cell.takesWholeLine;
    }
    return lines;
}

QSize ControlFlow::sizeOf(const Cell& cell, int width)
{
    const QSize hint = cell.item->sizeHint();
    const int own = cell.takesWholeLine ? width : std::min(hint.width(), width);
    return {own, cell.item->hasHeightForWidth() ? cell.item->heightForWidth(own) : hint.height()};
}

int ControlFlow::gap(Qt::Orientation orientation) const
{
    constexpr int gapOfStylesWithoutOne = 6;
    const auto metric =
        orientation == Qt::Horizontal ? QStyle::PM_LayoutHorizontalSpacing : QStyle::PM_LayoutVerticalSpacing;
    const int own = parentWidget()->style()->pixelMetric(metric, nullptr, parentWidget());
    return own >= 0 ? own : gapOfStylesWithoutOne;
}

} // namespace morvane::ui
