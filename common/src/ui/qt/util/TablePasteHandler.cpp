// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/TablePasteHandler.h"

#include "ui/qt/util/GuiThread_p.h"
#include "ui/qt/util/PasteCommand_p.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QItemSelection>
#include <QKeyEvent>
#include <QPointer>
#include <QTableView>
#include <QUndoStack>

namespace morvane::ui {

namespace {

/** After a drag, the current cell is where the mouse was released, but spreadsheet programs begin at the corner. */
QModelIndex firstCell(const QTableView& view)
{
    const QModelIndex current = view.currentIndex();
    if (view.selectionBehavior() == QAbstractItemView::SelectItems && view.selectionModel()) {
        const QItemSelection selection = view.selectionModel()->selection();
        for (const QItemSelectionRange& range : selection) {
            if (range.contains(current)) {
                return range.topLeft();
            }
        }
    }
    return current;
}

} // namespace

struct TablePasteHandler::Impl
{
    explicit Impl(QTableView& tableView) : view(tableView) {}

    QTableView& view;
    BlockPaste::Rules rules;
    QPointer<QUndoStack> undoStack;
    QAction* action = nullptr; // the handler's child
};

TablePasteHandler::TablePasteHandler(QTableView& tableView)
    : QObject(&tableView), m_impl(std::make_unique<Impl>(tableView))
{
    expectGuiThread("TablePasteHandler");
    qRegisterMetaType<QList<TablePasteRefusal>>("QList<morvane::ui::TablePasteRefusal>");
    tableView.installEventFilter(this);
}

TablePasteHandler::~TablePasteHandler()
{
    // Not through the view, which may be only a QObject by now.
    parent()->removeEventFilter(this);
}

bool TablePasteHandler::isAddingRows() const
{
    return m_impl->rules.mayAddRows;
}

void TablePasteHandler::setAddingRows(bool on)
{
    m_impl->rules.mayAddRows = on;
}

QUndoStack* TablePasteHandler::undoStack() const
{
    return m_impl->undoStack;
}

void TablePasteHandler::setUndoStack(QUndoStack* stack)
{
    m_impl->undoStack = stack;
}

std::optional<QLocale> TablePasteHandler::numberLocale() const
{
    return m_impl->rules.numberLocale;
}

void TablePasteHandler::setNumberLocale(const std::optional<QLocale>& locale)
{
    m_impl->rules.numberLocale = locale;
}

QAction* TablePasteHandler::pasteAction()
{
    if (!m_impl->action) {
        m_impl->action = new QAction(tr("&Paste"), this);
        connect(m_impl->action, &QAction::triggered, this, &TablePasteHandler::pasteFromClipboard);
    }
    return m_impl->action;
}

bool TablePasteHandler::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !static_cast<QKeyEvent*>(event)->matches(QKeySequence::Paste)) {
        return false;
    }
    // A slot may delete this handler, so no member is used afterwards.
    pasteFromClipboard();
    return true;
}

bool TablePasteHandler::pasteFromClipboard()
{
    return paste(QGuiApplication::clipboard()->text());
}

bool TablePasteHandler::paste(const QString& block)
{
    expectGuiThread("TablePasteHandler");
    const QModelIndex first = firstCell(m_impl->view);
    CellBlock cells = readCellBlock(block);
    if (cells.empty() || !first.isValid()) {
        return false;
    }
    const QPointer<TablePasteHandler> self(this);
    auto step = std::make_unique<BlockPaste>(first, std::move(cells), m_impl->rules);
    const bool isPasted = step->paste();
    if (!self) {
        return isPasted;
    }
    if (!isPasted) {
        Q_EMIT refused(step->refusals());
        return false;
    }
    const int rows = step->rowCount();
    const int columns = step->columnCount();
    if (m_impl->undoStack) {
        m_impl->undoStack->push(new PasteCommand(std::move(step), tr("Paste")));
    }
    if (self) {
        Q_EMIT pasted(rows, columns);
    }
    return true;
}

} // namespace morvane::ui
