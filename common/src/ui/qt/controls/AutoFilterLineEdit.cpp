// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/AutoFilterLineEdit_p.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QSignalBlocker>

namespace morvane::ui {

namespace {

QMetaMethod completerSignal(const char* signature)
{
    const QMetaObject& type = QCompleter::staticMetaObject;
    return type.method(type.indexOfSignal(signature));
}

QMetaMethod lineSlot(const char* signature)
{
    const QMetaObject& type = QLineEdit::staticMetaObject;
    return type.method(type.indexOfSlot(signature));
}

/** The signals and the slot that connect a completer with a line. Looked up only once, because each key needs them. */
struct CompleterConnections
{
    const QMetaMethod activated = completerSignal("activated(QString)");
    const QMetaMethod highlighted = completerSignal("highlighted(QString)");
    const QMetaMethod setText = lineSlot("setText(QString)");
};

const CompleterConnections& completerConnections()
{
    static const CompleterConnections connections;
    return connections;
}

bool isMarked(const QAbstractItemView& popup, const QModelIndex& entry)
{
    return popup.currentIndex() == entry && popup.selectionModel()->isSelected(entry);
}

} // namespace

AutoFilterLineEdit::CompleterDetached::CompleterDetached(QLineEdit& line, QCompleter& completer)
    : m_line(&line), m_completer(&completer)
{
    // From all slots of the line: one of them is a private slot, which not every version of Qt has.
    const CompleterConnections& both = completerConnections();
    QObject::disconnect(m_completer, both.activated, m_line, QMetaMethod());
    QObject::disconnect(m_completer, both.highlighted, m_line, QMetaMethod());
}

AutoFilterLineEdit::CompleterDetached::~CompleterDetached()
{
    if (m_line && m_completer) {
        const CompleterConnections& both = completerConnections();
        QObject::connect(m_completer, both.activated, m_line, both.setText);
        QObject::connect(m_completer, both.highlighted, m_line, both.setText);
    }
}

AutoFilterLineEdit::AutoFilterLineEdit(QWidget* parent) : QLineEdit(parent)
{
    connect(this, &QLineEdit::textEdited, this, [this] { m_keepsMark = false; });
}

AutoFilterLineEdit* AutoFilterLineEdit::of(const QComboBox& box)
{
    return dynamic_cast<AutoFilterLineEdit*>(box.lineEdit());
}

bool AutoFilterLineEdit::isTabPress(const QEvent& event)
{
    if (event.type() != QEvent::KeyPress) {
        return false;
    }
    const auto& key = static_cast<const QKeyEvent&>(event);
    return key.key() == Qt::Key_Tab && !(key.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier));
}

bool AutoFilterLineEdit::event(QEvent* event)
{
    // QWidget would move the focus on Tab and not call keyPressEvent().
    if (isTabPress(*event)) {
        keyPressEvent(static_cast<QKeyEvent*>(event));
        return true;
    }
    return QLineEdit::event(event);
}

void AutoFilterLineEdit::keyPressEvent(QKeyEvent* event)
{
    const QPointer<AutoFilterLineEdit> self(this);
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
        Q_EMIT editingFinished();
        break;
    default:
        QLineEdit::keyPressEvent(event);
        break;
    }
    if (self) {
        markCurrentCompletion();
    }
}

void AutoFilterLineEdit::inputMethodEvent(QInputMethodEvent* event)
{
    const QPointer<AutoFilterLineEdit> self(this);
    const bool brings = !event->commitString().isEmpty();
    QLineEdit::inputMethodEvent(event);
    if (self && brings) {
        markCurrentCompletion();
    }
}

void AutoFilterLineEdit::focusOutEvent(QFocusEvent*) {}

void AutoFilterLineEdit::showUnfocused(QFocusEvent& event)
{
    const QSignalBlocker editingGoesOn(this);
    QLineEdit::focusOutEvent(&event);
}

void AutoFilterLineEdit::markCurrentCompletion()
{
    const QCompleter* const completer = this->completer();
    if (m_keepsMark || !completer || !completer->model() || completer->model()->rowCount() == 0) {
        return;
    }
    if (const QAbstractItemView* const popup = completer->popup()) {
        const QModelIndex current = completer->currentIndex();
        if (!isMarked(*popup, current)) {
            const CompleterDetached detached(*this, *this->completer());
            popup->selectionModel()->select(current, QItemSelectionModel::Select);
            this->completer()->popup()->setCurrentIndex(current);
        }
    }
}

void AutoFilterLineEdit::markSuggestion(const QModelIndex& suggestion)
{
    const CompleterDetached detached(*this, *completer());
    QAbstractItemView& popup = *completer()->popup();
    if (suggestion.isValid()) {
        popup.setCurrentIndex(suggestion);
    } else {
        popup.selectionModel()->clear();
    }
    keepMark();
}

} // namespace morvane::ui
