// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/TableCopyExtras_p.h"

#include "ui/qt/util/TableCopyHandler.h"

#include <QAction>
#include <QMenu>
#include <QTableView>

namespace morvane::ui {

TableCopyExtras::TableCopyExtras(TableCopyHandler& handler, QTableView& view)
    : QObject(&handler), m_handler(handler), m_view(view)
{
}

TableCopyExtras::~TableCopyExtras()
{
    // The view may be only a QObject by now.
    if (qobject_cast<QTableView*>(m_handler.parent())) {
        setContextMenu(false);
    }
}

TableCopyExtras* TableCopyExtras::find(const TableCopyHandler& handler)
{
    return handler.findChild<TableCopyExtras*>(QString(), Qt::FindDirectChildrenOnly);
}

bool TableCopyExtras::changesText() const
{
    return rules.columnHeaders || rules.rowHeaders || rules.role != Qt::DisplayRole || rules.numberLocale ||
           isQuoting || copiesHtml || keepsClipboard;
}

QAction* TableCopyExtras::copyWithHeadersAction()
{
    if (!m_copyWithHeaders) {
        m_copyWithHeaders = new QAction(TableCopyHandler::tr("Copy with &Headers"), this);
        connect(m_copyWithHeaders, &QAction::triggered, this, [this] { m_handler.copyWithHeaders(); });
    }
    return m_copyWithHeaders;
}

void TableCopyExtras::setContextMenu(bool on)
{
    if (on == m_hasContextMenu) {
        return;
    }
    m_hasContextMenu = on;
    if (on) {
        m_policyBefore = m_view.contextMenuPolicy();
        m_view.setContextMenuPolicy(Qt::CustomContextMenu);
        connect(&m_view, &QWidget::customContextMenuRequested, this, &TableCopyExtras::showMenu);
    } else {
        m_view.setContextMenuPolicy(m_policyBefore);
        disconnect(&m_view, &QWidget::customContextMenuRequested, this, nullptr);
    }
}

void TableCopyExtras::showMenu(const QPoint& place)
{
    auto* const menu = new QMenu(&m_view);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* const copy = menu->addAction(TableCopyHandler::tr("&Copy"));
    // Shown only: the shortcuts of a menu that belongs to no menu bar do nothing.
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutVisibleInContextMenu(true);
    connect(copy, &QAction::triggered, &m_handler, &TableCopyHandler::copyToClipboard);
    QAction* const copyWithHeaders = menu->addAction(TableCopyHandler::tr("Copy with &Headers"));
    connect(copyWithHeaders, &QAction::triggered, this, [this] { m_handler.copyWithHeaders(); });
    const bool hasSelection = m_view.selectionModel() && m_view.selectionModel()->hasSelection();
    copy->setEnabled(hasSelection);
    copyWithHeaders->setEnabled(hasSelection);
    if (!m_view.actions().isEmpty()) {
        menu->addSeparator();
        menu->addActions(m_view.actions());
    }
    menu->popup(m_view.viewport()->mapToGlobal(place));
}

} // namespace morvane::ui
