// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "PaddedItemDelegate.h"

#include <QApplication>

namespace gallery {

PaddedItemDelegate::PaddedItemDelegate(int padding, QObject* parent) : QStyledItemDelegate(parent), m_padding(padding)
{
}

void PaddedItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem whole = option;
    initStyleOption(&whole, index);
    const QStyle* const style = option.widget ? option.widget->style() : QApplication::style();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &whole, painter, option.widget);

    QStyleOptionViewItem text = option;
    text.rect.adjust(m_padding, 0, -m_padding, 0);
    QStyledItemDelegate::paint(painter, text, index);
}

QSize PaddedItemDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    return QStyledItemDelegate::sizeHint(option, index) + QSize(2 * m_padding, 0);
}

} // namespace gallery
