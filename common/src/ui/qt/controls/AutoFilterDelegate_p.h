// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/controls/EntryMatcher_p.h"

#include <QStyledItemDelegate>

class QAbstractItemView;
class QCompleter;

namespace morvane::ui {

/** Paints the suggestions of a completer with the places of the typed text in bold. */
class AutoFilterDelegate : public QStyledItemDelegate
{
public:
    /**
     * @param popup    the list of suggestions; owns the delegate
     * @param matching how the text is compared
     */
    AutoFilterDelegate(QAbstractItemView& popup, const QCompleter& completer, EntryMatching matching);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    const QAbstractItemView& m_popup;
    const QCompleter& m_completer;
    const EntryMatching m_matching;
};

} // namespace morvane::ui
