// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStyledItemDelegate>

namespace gallery {

/** Draws items with padding at both sides of their text. */
class PaddedItemDelegate : public QStyledItemDelegate
{
public:
    /** @param padding at each side, in device-independent pixels */
    PaddedItemDelegate(int padding, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    int m_padding;
};

} // namespace gallery
