// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/AutoFilterDelegate_p.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>

namespace morvane::ui {

namespace {

using Places = std::vector<EntryMatcher::Place>;

/** The places in the text after it was elided. Places that are not shown are left out. */
Places placesInElided(const QString& text, const QString& elided, const Places& places)
{
    const auto head =
        static_cast<int>(std::mismatch(elided.begin(), elided.end(), text.begin(), text.end()).first - elided.begin());
    if (head == elided.size()) {
        return places;
    }
    // The rest of the elided text is its last part; the ellipsis is before it.
    const auto tail = static_cast<int>(elided.size()) - head - 1;
    const auto hidden = static_cast<int>(text.size()) - tail;
    Places shown;
    for (const auto& [begin, length] : places) {
        if (begin < head) {
            shown.emplace_back(begin, std::min(length, head - begin));
        }
        if (begin + length > hidden) {
            const int from = std::max(begin, hidden);
            shown.emplace_back(head + 1 + from - hidden, begin + length - from);
        }
    }
    return shown;
}

void draw(QPainter& painter, const QStyleOptionViewItem& option, const QRect& place, const Places& places)
{
    QFont bold = option.font;
    bold.setBold(true);
    // Measured in bold, so that it fits in any case.
    const QString shown = QFontMetrics(bold).elidedText(option.text, option.textElideMode, place.width());
    QVector<QTextLayout::FormatRange> formats;
    for (const auto& [begin, length] : placesInElided(option.text, shown, places)) {
        QTextLayout::FormatRange range;
        range.start = begin;
        range.length = length;
        range.format.setFontWeight(QFont::Bold);
        formats.append(range);
    }
    QTextLayout layout(shown, option.font);
    QTextOption direction;
    direction.setTextDirection(option.direction);
    direction.setAlignment(QStyle::visualAlignment(option.direction, option.displayAlignment));
    direction.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(direction);
    layout.setFormats(formats);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(place.width());
    layout.endLayout();
    layout.draw(&painter, QPointF(place.left(), place.top() + (place.height() - line.height()) / 2));
}

QColor textColour(const QStyleOptionViewItem& option)
{
    const bool isActive = option.state & QStyle::State_Active;
    const QPalette::ColorGroup group = !(option.state & QStyle::State_Enabled) ? QPalette::Disabled
                                       : isActive                              ? QPalette::Normal
                                                                               : QPalette::Inactive;
    const bool isSelected = option.state & QStyle::State_Selected;
    return option.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
}

} // namespace

AutoFilterDelegate::AutoFilterDelegate(QAbstractItemView& popup, const QCompleter& completer, EntryMatching matching)
    : QStyledItemDelegate(&popup), m_popup(popup), m_completer(completer), m_matching(matching)
{
}

void AutoFilterDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    item.showDecorationSelected = true;
    // As the popup looks without this delegate: it has no focus, but its current suggestion looks as if it had.
    item.state.setFlag(QStyle::State_HasFocus, m_popup.currentIndex() == index);
    const EntryMatcher matcher(m_completer.completionPrefix(), m_matching, m_completer.caseSensitivity());
    const Places places = matcher.places(item.text);
    const QStyle& style = m_popup.style() ? *m_popup.style() : *QApplication::style();
    const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, &item, &m_popup) + 1;
    const QRect place =
        style.subElementRect(QStyle::SE_ItemViewItemText, &item, &m_popup).adjusted(margin, 0, -margin, 0);
    QStyleOptionViewItem frame = item;
    frame.text = QStringLiteral(" "); // with no text at all, the icon would have another place
    style.drawControl(QStyle::CE_ItemViewItem, &frame, painter, &m_popup);
    painter->save();
    painter->setPen(textColour(item));
    painter->setClipRect(place);
    draw(*painter, item, place, places);
    painter->restore();
}

} // namespace morvane::ui
