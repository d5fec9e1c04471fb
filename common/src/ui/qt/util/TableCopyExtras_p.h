// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/util/CopiedTable_p.h"

#include <QObject>

class QAction;
class QPoint;
class QTableView;

namespace morvane::ui {

class TableCopyHandler;

/** What a host has switched on for a TableCopyHandler. A child of the handler, which has no data for it. */
class TableCopyExtras : public QObject
{
    Q_OBJECT

public:
    TableCopyExtras(TableCopyHandler& handler, QTableView& view);
    ~TableCopyExtras() override;

    /** Null if nothing was switched on yet. */
    static TableCopyExtras* find(const TableCopyHandler& handler);

    /** Whether the text differs from the one without options. */
    bool changesText() const;

    QAction* copyWithHeadersAction();
    bool hasContextMenu() const { return m_hasContextMenu; }
    void setContextMenu(bool on);

    CopiedTable::Rules rules;
    bool isQuoting = false;
    bool copiesHtml = false;
    bool keepsClipboard = false;

private:
    void showMenu(const QPoint& place);

    TableCopyHandler& m_handler;
    QTableView& m_view;
    QAction* m_copyWithHeaders = nullptr;
    bool m_hasContextMenu = false;
    Qt::ContextMenuPolicy m_policyBefore = Qt::DefaultContextMenu;
};

} // namespace morvane::ui
