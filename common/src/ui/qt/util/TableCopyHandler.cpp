// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/TableCopyHandler.h"

#include "ui/qt/util/GuiThread_p.h"
#include "ui/qt/util/SelectionText_p.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTableView>

namespace morvane::ui {

namespace {

QString selectedText(const QTableView& view)
{
    const QAbstractItemModel* const model = view.model();
    const QItemSelectionModel* const selectionModel = view.selectionModel();
    return model && selectionModel ? selectionText(selectionModel->selection(), *model) : QString();
}

} // namespace

TableCopyHandler::TableCopyHandler(QTableView& tableView) : CopyHandlerAbstract(tableView), m_tableView(&tableView) {}

TableCopyHandler::~TableCopyHandler() = default;

void TableCopyHandler::copyToClipboard()
{
    expectGuiThread("TableCopyHandler");
    const QString text = selectedText(*m_tableView);
    // The last step, because a slot of the clipboard may delete this handler.
    QGuiApplication::clipboard()->setText(text, QClipboard::Clipboard);
}

} // namespace morvane::ui
