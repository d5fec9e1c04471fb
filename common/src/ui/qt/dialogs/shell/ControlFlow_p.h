// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLayout>

#include <map>
#include <utility>
#include <vector>

namespace morvane::ui {

/**
 * Lays cells out in lines, as words in a text: in the reading direction, and in a new line where the width ends. A cell
 * that takes the whole line is alone in it. Hidden cells take no room.
 */
class ControlFlow : public QLayout
{
public:
    explicit ControlFlow(QWidget* parent);
    ~ControlFlow() override;

    void addCell(QWidget& cell, bool takesWholeLine);

    void addItem(QLayoutItem* item) override;
    int count() const override;
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize minimumSize() const override;
    QSize sizeHint() const override;
    void setGeometry(const QRect& rectangle) override;
    void invalidate() override;

private:
    struct Cell
    {
        QLayoutItem* item;
        bool takesWholeLine;
    };
    struct Line
    {
        std::vector<std::pair<QLayoutItem*, QRect>> cells{};
        int height = 0;
    };

    std::vector<Line> linesFor(int width) const;
    static QSize sizeOf(const Cell& cell, int width);
    int gap(Qt::Orientation orientation) const;

    std::vector<Cell> m_cells;
    mutable std::map<int, int> m_heights; ///< by width; Qt asks many times
    mutable QSize m_minimumSize;          ///< invalid: not known yet
};

} // namespace morvane::ui
