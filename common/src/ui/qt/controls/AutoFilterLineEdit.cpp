#include "ui/qt/controls/AutoFilterLineEdit.h"

#include <QAbstractItemView>
#include <QItemSelectionModel>
#include <QKeyEvent>

namespace morvane::ui {

AutoFilterLineEdit::CompleterDetached::CompleterDetached(QLineEdit& line, QCompleter& completer)
    : m_line(&line), m_completer(&completer)
{
    QObject::disconnect(m_completer, SIGNAL(activated(QString)), m_line, SLOT(setText(QString)));
    QObject::disconnect(m_completer, SIGNAL(highlighted(QString)), m_line, SLOT(_q_completionHighlighted(QString)));
}

AutoFilterLineEdit::CompleterDetached::~CompleterDetached()
{
    if (m_line && m_completer) {
        QObject::connect(m_completer, SIGNAL(activated(QString)), m_line, SLOT(setText(QString)));
        QObject::connect(m_completer, SIGNAL(highlighted(QString)), m_line, SLOT(_q_completionHighlighted(QString)));
    }
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
    // QWidget hands Tab to the focus chain and would leave none for keyPressEvent().
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

void AutoFilterLineEdit::focusOutEvent(QFocusEvent*) {}

void AutoFilterLineEdit::markCurrentCompletion()
{
    QCompleter* const completer = this->completer();
    if (!completer || !completer->model() || completer->model()->rowCount() == 0) {
        return;
    }
    const CompleterDetached detached(*this, *completer);
    if (QAbstractItemView* const popup = completer->popup()) {
        const QModelIndex current = completer->currentIndex();
        popup->selectionModel()->select(current, QItemSelectionModel::Select);
        popup->setCurrentIndex(current);
    }
}

} // namespace morvane::ui
