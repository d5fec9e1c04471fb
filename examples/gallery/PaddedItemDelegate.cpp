#include "PaddedItemDelegate.h"

#include <QApplication>

namespace gallery {

namespace {

int padding(const QStyleOptionViewItem& option)
{
    return option.fontMetrics.height() / 2;
}

} // namespace

void PaddedItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem whole = option;
    initStyleOption(&whole, index);
    const QStyle* const style = option.widget ? option.widget->style() : QApplication::style();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &whole, painter, option.widget);

    QStyleOptionViewItem text = option;
    text.rect.adjust(padding(option), 0, -padding(option), 0);
    QStyledItemDelegate::paint(painter, text, index);
}

QSize PaddedItemDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    return QStyledItemDelegate::sizeHint(option, index) + QSize(2 * padding(option), 0);
}

} // namespace gallery
