// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/TableCopyHandler.h"

#include "ui/qt/util/GuiThread_p.h"
#include "ui/qt/util/SelectionText_p.h"
#include "ui/qt/util/TableCopyExtras_p.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QTableView>

#include <memory>

namespace morvane::ui {

namespace {

QString selectedText(const QTableView& view)
{
    const QAbstractItemModel* const model = view.model();
    const QItemSelectionModel* const selectionModel = view.selectionModel();
    return model && selectionModel ? selectionText(selectionModel->selection(), *model) : QString();
}

CopiedTable selectedTable(const QTableView& view, const CopiedTable::Rules& rules)
{
    const QAbstractItemModel* const model = view.model();
    const QItemSelectionModel* const selectionModel = view.selectionModel();
    return model && selectionModel ? copiedTable(selectionModel->selection(), *model, rules) : CopiedTable();
}

} // namespace

TableCopyHandler::TableCopyHandler(QTableView& tableView) : CopyHandlerAbstract(tableView), m_tableView(&tableView) {}

TableCopyHandler::~TableCopyHandler() = default;

TableCopyExtras& TableCopyHandler::extras()
{
    TableCopyExtras* const found = TableCopyExtras::find(*this);
    return found ? *found : *new TableCopyExtras(*this, *m_tableView);
}

TableCopyHandler::Headers TableCopyHandler::copiedHeaders() const
{
    Headers headers = NoHeaders;
    if (const TableCopyExtras* const extras = TableCopyExtras::find(*this)) {
        headers.setFlag(ColumnHeaders, extras->rules.columnHeaders);
        headers.setFlag(RowHeaders, extras->rules.rowHeaders);
    }
    return headers;
}

void TableCopyHandler::setCopiedHeaders(Headers headers)
{
    extras().rules.columnHeaders = headers.testFlag(ColumnHeaders);
    extras().rules.rowHeaders = headers.testFlag(RowHeaders);
}

TableCopyHandler::Values TableCopyHandler::copiedValues() const
{
    const TableCopyExtras* const extras = TableCopyExtras::find(*this);
    return extras && extras->rules.role == Qt::EditRole ? Values::Stored : Values::Shown;
}

void TableCopyHandler::setCopiedValues(Values values)
{
    extras().rules.role = values == Values::Stored ? Qt::EditRole : Qt::DisplayRole;
}

bool TableCopyHandler::isQuoting() const
{
    const TableCopyExtras* const extras = TableCopyExtras::find(*this);
    return extras && extras->isQuoting;
}

void TableCopyHandler::setQuoting(bool on)
{
    extras().isQuoting = on;
}

bool TableCopyHandler::isCopyingHtml() const
{
    const TableCopyExtras* const extras = TableCopyExtras::find(*this);
    return extras && extras->copiesHtml;
}

void TableCopyHandler::setCopyingHtml(bool on)
{
    extras().copiesHtml = on;
}

std::optional<QLocale> TableCopyHandler::numberLocale() const
{
    const TableCopyExtras* const extras = TableCopyExtras::find(*this);
    return extras ? extras->rules.numberLocale : std::nullopt;
}

void TableCopyHandler::setNumberLocale(const std::optional<QLocale>& locale)
{
    extras().rules.numberLocale = locale;
}

bool TableCopyHandler::isKeepingClipboard() const
{
    const TableCopyExtras* const extras = TableCopyExtras::find(*this);
    return extras && extras->keepsClipboard;
}

void TableCopyHandler::setKeepingClipboard(bool on)
{
    extras().keepsClipboard = on;
}

bool TableCopyHandler::hasContextMenu() const
{
    const TableCopyExtras* const extras = TableCopyExtras::find(*this);
    return extras && extras->hasContextMenu();
}

void TableCopyHandler::setContextMenu(bool on)
{
    extras().setContextMenu(on);
}

QAction* TableCopyHandler::copyWithHeadersAction()
{
    return extras().copyWithHeadersAction();
}

void TableCopyHandler::copyWithHeaders()
{
    expectGuiThread("TableCopyHandler");
    copy(extras(), true);
}

void TableCopyHandler::copyToClipboard()
{
    expectGuiThread("TableCopyHandler");
    const TableCopyExtras* const extras = TableCopyExtras::find(*this);
    if (extras && extras->changesText()) {
        copy(*extras, false);
        return;
    }
    const QString text = selectedText(*m_tableView);
    // The last step, because a slot of the clipboard may delete this handler.
    QGuiApplication::clipboard()->setText(text, QClipboard::Clipboard);
}

void TableCopyHandler::copy(const TableCopyExtras& extras, bool withHeaders)
{
    CopiedTable::Rules rules = extras.rules;
    rules.columnHeaders = rules.columnHeaders || withHeaders;
    const CopiedTable table = selectedTable(*m_tableView, rules);
    if (table.lines.empty() && extras.keepsClipboard) {
        return;
    }
    auto contents = std::make_unique<QMimeData>();
    contents->setText(plainText(table, extras.isQuoting));
    if (extras.copiesHtml && !table.lines.empty()) {
        contents->setHtml(htmlText(table));
    }
    // The last step, because a slot of the clipboard may delete this handler.
    QGuiApplication::clipboard()->setMimeData(contents.release(), QClipboard::Clipboard);
}

} // namespace morvane::ui
