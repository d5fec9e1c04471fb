// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/ElidedTextCopyHandler_p.h"

#include "ui/qt/controls/ElidedTextLabel.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>

namespace morvane::ui {

ElidedTextCopyHandler::ElidedTextCopyHandler(ElidedTextLabel& label)
    : CopyHandlerAbstract(label), m_label(label), m_setsFocusPolicy(label.focusPolicy() == Qt::NoFocus)
{
    if (m_setsFocusPolicy) {
        label.setFocusPolicy(Qt::StrongFocus);
    }
}

ElidedTextCopyHandler::~ElidedTextCopyHandler() = default;

ElidedTextCopyHandler* ElidedTextCopyHandler::find(const ElidedTextLabel& label)
{
    return label.findChild<ElidedTextCopyHandler*>(QString(), Qt::FindDirectChildrenOnly);
}

void ElidedTextCopyHandler::remove()
{
    const bool isOurs = m_label.focusPolicy() == Qt::StrongFocus; // the host may have set another one
    if (m_setsFocusPolicy && isOurs) {
        m_label.setFocusPolicy(Qt::NoFocus);
        m_label.clearFocus();
    }
    delete this;
}

bool ElidedTextCopyHandler::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        // Otherwise an action of the window with this shortcut would copy something else.
        if (static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) {
            event->accept();
            return true;
        }
        return false;
    case QEvent::ContextMenu:
        return showMenu(*static_cast<QContextMenuEvent*>(event));
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        m_label.update();
        return false;
    default:
        return CopyHandlerAbstract::eventFilter(watched, event);
    }
}

void ElidedTextCopyHandler::copyToClipboard()
{
    if (!m_label.text().isEmpty()) {
        QGuiApplication::clipboard()->setText(m_label.text());
    }
}

bool ElidedTextCopyHandler::showMenu(const QContextMenuEvent& event)
{
    if (m_label.contextMenuPolicy() != Qt::DefaultContextMenu) {
        return false;
    }
    auto* const menu = new QMenu(&m_label);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* const copy = menu->addAction(ElidedTextLabel::tr("&Copy"));
    // Shown only: the shortcuts of a menu that belongs to no menu bar do nothing.
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutVisibleInContextMenu(true);
    copy->setEnabled(!m_label.text().isEmpty());
    connect(copy, &QAction::triggered, this, &ElidedTextCopyHandler::copyToClipboard);
    menu->popup(event.globalPos());
    return true;
}

} // namespace morvane::ui
