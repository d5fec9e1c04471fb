// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/ComboBoxAutoFilter.h"

#include "ui/qt/controls/AutoFilterCompleter_p.h"
#include "ui/qt/controls/AutoFilterFocusWatch_p.h"
#include "ui/qt/controls/AutoFilterItemView_p.h"
#include "ui/qt/controls/AutoFilterLineEdit_p.h"
#include "ui/qt/controls/AutoFilterOutcome_p.h"
#include "ui/qt/controls/AutoFilterSuggestions_p.h"
#include "ui/qt/controls/EventResender_p.h"
#include "ui/qt/util/GuiThread_p.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>

namespace morvane::ui {

struct ComboBoxAutoFilter::Impl
{
    enum class Announcement
    {
        AtOnce,
        Held,
        Due
    };

    explicit Impl(ComboBoxAutoFilter& box) : outcome(box), suggestions(box, outcome), listEvents(box), focusWatch(box)
    {
    }

    void setMatching(EntryMatching matching)
    {
        outcome.setMatching(matching);
        suggestions.followMatching();
    }

    Announcement announcement = Announcement::AtOnce;
    EditMode mode = SingleEdit;
    AutoFilterOutcome outcome;
    AutoFilterSuggestions suggestions;
    EventResender listEvents;
    AutoFilterFocusWatch focusWatch;
};

ComboBoxAutoFilter::ComboBoxAutoFilter(QWidget* parent) : QComboBox(parent), m_impl(std::make_unique<Impl>(*this))
{
    expectGuiThread("ComboBoxAutoFilter");
    auto* const list = new AutoFilterItemView;
    setView(list);
    // Qt calls the filters in reverse order. So this one is called before those of the popup that contains the list.
    list->installEventFilter(this);
    list->viewport()->installEventFilter(this);

    connect(list, SIGNAL(pressed(const QModelIndex&)), this, SLOT(onItemClicked(const QModelIndex&)));
    connect(list, SIGNAL(editingFinished()), this, SLOT(onEditingFinished()));
    connect(list, SIGNAL(editingCanceled()), this, SLOT(onEditingCanceled()));
    connect(
        list, SIGNAL(currentIndexChanged(QModelIndex const&)), this, SLOT(onCurrentIndexChanged(QModelIndex const&)));
    connect(this, SIGNAL(activated(int)), this, SLOT(onItemActivated(int)));
    connect(&m_impl->suggestions, &AutoFilterSuggestions::picked, this, &ComboBoxAutoFilter::onEditingFinished);
    connect(this, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this] {
        m_impl->suggestions.followModel();
        m_impl->outcome.onCurrentEntryChanged();
    });
}

ComboBoxAutoFilter::~ComboBoxAutoFilter()
{
    m_impl->focusWatch.stop();
    delete m_completer;
}

void ComboBoxAutoFilter::setList(const QStringList& items)
{
    addItems(items);
}

void ComboBoxAutoFilter::setListModel(QAbstractItemModel* model, bool editable, QCompleter::CompletionMode mode,
    Qt::CaseSensitivity cs, Qt::TextElideMode elide, Qt::MatchFlag match)
{
    setModel(model);
    init(editable, mode, cs, elide, match);
}

void ComboBoxAutoFilter::setCompleterAttributes(bool editable, QCompleter::CompletionMode mode, Qt::CaseSensitivity cs,
    Qt::TextElideMode elide, Qt::MatchFlag match)
{
    init(editable, mode, cs, elide, match);
}

void ComboBoxAutoFilter::init(
    bool editable, QCompleter::CompletionMode mode, Qt::CaseSensitivity cs, Qt::TextElideMode elide, Qt::MatchFlag)
{
    setEditable(editable);
    setLineEdit(new AutoFilterLineEdit);
    auto* const ownCompleter = new AutoFilterCompleter(model(), this);
    m_completer = ownCompleter;
    m_impl->suggestions.setCompleter(*ownCompleter);
    m_completer->setModelFiltering(ctkCompleter::FilterContains);
    m_completer->setCompletionMode(mode);
    m_impl->suggestions.setUpPopup(elide);
    m_completer->setCaseSensitivity(cs);
    m_impl->suggestions.followMatching();
    m_impl->suggestions.followModel();
    setCompleter(m_completer);
    connectLine();
    if (auto* const list = qobject_cast<QListView*>(view())) {
        list->setUniformItemSizes(true);
    }
    setInsertPolicy(QComboBox::NoInsert);
}

void ComboBoxAutoFilter::connectLine()
{
    if (!lineEdit()) {
        return;
    }
    // QComboBox would make an entry with an equal text current, even a disabled one. takeOutcome() is used instead.
    disconnect(lineEdit(), SIGNAL(editingFinished()), this, nullptr);
    connect(lineEdit(), SIGNAL(editingFinished()), this, SLOT(onEditingFinished()));
    connect(lineEdit(), &QLineEdit::textEdited, this, [this] {
        m_impl->outcome.clearPick();
        m_impl->outcome.beginEdit();
        if (m_impl->mode == FormField) {
            // While the suggestions are open, the completer does not tell the combo box that the focus was lost.
            watchFocus();
        }
    });
}

bool ComboBoxAutoFilter::isFiltering() const
{
    return m_completer != nullptr;
}

void ComboBoxAutoFilter::setFiltering(bool on)
{
    if (on == isFiltering()) {
        return;
    }
    if (on) {
        init(true, QCompleter::PopupCompletion, Qt::CaseInsensitive, Qt::ElideRight, Qt::MatchContains);
        return;
    }
    delete m_completer;
    m_completer = nullptr;
    setEditable(false);
}

ComboBoxAutoFilter::EditMode ComboBoxAutoFilter::editMode() const
{
    return m_impl->mode;
}

void ComboBoxAutoFilter::setEditMode(EditMode mode)
{
    m_impl->mode = mode;
}

bool ComboBoxAutoFilter::isMatchingWords() const
{
    return m_impl->outcome.matching().words;
}

void ComboBoxAutoFilter::setMatchingWords(bool on)
{
    EntryMatching matching = m_impl->outcome.matching();
    matching.words = on;
    m_impl->setMatching(matching);
}

bool ComboBoxAutoFilter::isIgnoringAccents() const
{
    return m_impl->outcome.matching().ignoresAccents;
}

void ComboBoxAutoFilter::setIgnoringAccents(bool on)
{
    EntryMatching matching = m_impl->outcome.matching();
    matching.ignoresAccents = on;
    m_impl->setMatching(matching);
}

bool ComboBoxAutoFilter::isMatchShown() const
{
    return m_impl->suggestions.showsMatch();
}

void ComboBoxAutoFilter::setMatchShown(bool on)
{
    m_impl->suggestions.setShowsMatch(on);
}

bool ComboBoxAutoFilter::validateEntry()
{
    if (m_escapePressed && m_impl->mode == SingleEdit) {
        return true;
    }
    const int index = m_impl->outcome.findRow();
    if (index < 0) {
        return false;
    }
    m_impl->outcome.takeRow(index);
    // The program uses this entry from now on. Cancelling restores it.
    m_impl->outcome.keepCurrent();
    return true;
}

bool ComboBoxAutoFilter::takeOutcome()
{
    const int before = currentIndex();
    const QString text = lineEdit() ? lineEdit()->text() : QString();
    const bool isValid = validateEntry();
    if (isValid && currentIndex() != before && itemText(currentIndex()) == text) {
        m_impl->outcome.announceActivation();
    }
    return isValid;
}

void ComboBoxAutoFilter::setSelectedText(const QString& text)
{
    const int index = findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index >= 0) {
        setCurrentIndex(index);
    }
    if (lineEdit()) {
        lineEdit()->setSelection(0, text.size());
    }
}

void ComboBoxAutoFilter::setFromValue(const QVariant& value)
{
    const int index = findData(value, Qt::UserRole, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index >= 0 && index != currentIndex()) {
        setCurrentIndex(index);
    }
}

void ComboBoxAutoFilter::showPopup()
{
    const AutoFilterUserEdit::Step step = m_impl->outcome.step();
    m_impl->suggestions.followModel();
    const int before = currentIndex();
    const int index = m_impl->outcome.findRow();
    if (index >= 0) {
        m_impl->outcome.takeRow(index);
    }
    if (currentIndex() != before) {
        m_impl->outcome.beginEdit();
    }
    if (m_indexBeforeEdit == -1) {
        m_indexBeforeEdit = currentIndex();
    }
    QComboBox::showPopup();
}

bool ComboBoxAutoFilter::event(QEvent* event)
{
    const bool isField = m_impl->mode == FormField;
    if (isField && event->type() == QEvent::ShortcutOverride && m_impl->outcome.isEditUnfinished() &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    // The combo box is the focus proxy of its line. QWidget would move the focus on Tab before the line gets the key.
    if (AutoFilterLineEdit::isTabPress(*event) && (isField || AutoFilterLineEdit::of(*this))) {
        const QPointer<ComboBoxAutoFilter> self(this);
        const QWidget* const focused = window()->focusWidget();
        keyPressEvent(static_cast<QKeyEvent*>(event));
        if (isField) {
            event->accept();
        }
        // A slot may have moved the focus, for instance by hiding or disabling the field.
        if (isField && self && window()->focusWidget() == focused) {
            focusNextPrevChild(true);
        }
        return true;
    }
    return QComboBox::event(event);
}

bool ComboBoxAutoFilter::eventFilter(QObject* watched, QEvent* event)
{
    if (m_impl->listEvents.isResent(*event)) {
        return false;
    }
    const QEvent::Type type = event->type();
    if (watched == view() && type == QEvent::ShortcutOverride) {
        return filterListKey(static_cast<QKeyEvent&>(*event));
    }
    if (watched == view() && type == QEvent::KeyPress) {
        return filterListTab(static_cast<QKeyEvent&>(*event));
    }
    if (watched == view()->viewport() && type == QEvent::MouseButtonRelease) {
        return filterListRelease(*watched, static_cast<QMouseEvent&>(*event));
    }
    return m_impl->suggestions.filter(*watched, *event) || QComboBox::eventFilter(watched, event);
}

bool ComboBoxAutoFilter::filterListKey(QKeyEvent& event)
{
    // The mouse was released outside of the entry on which it was pressed. Now a key picks an entry.
    m_itemClicked = false;
    if (event.key() == Qt::Key_Escape) {
        // Otherwise the popup would close now, and the list would not get the key press that cancels the edit.
        event.accept();
        return true;
    }
    // Return picks an entry during this event.
    const AutoFilterUserEdit::Step step = m_impl->outcome.step();
    m_impl->listEvents.resend(*view(), event);
    return true;
}

bool ComboBoxAutoFilter::filterListTab(QKeyEvent& event)
{
    const bool isBack = event.key() == Qt::Key_Backtab;
    if (m_impl->mode == SingleEdit || (event.key() != Qt::Key_Tab && !isBack)) {
        return false;
    }
    const AutoFilterUserEdit::Step step = m_impl->outcome.step();
    const QPointer<ComboBoxAutoFilter> self(this);
    const QWidget* const focused = window()->focusWidget();
    if (view()->currentIndex().isValid()) {
        onCurrentIndexChanged(view()->currentIndex());
    }
    onEditingFinished();
    if (self && window()->focusWidget() == focused) {
        focusNextPrevChild(!isBack);
    }
    return true;
}

bool ComboBoxAutoFilter::filterListRelease(QObject& viewport, QMouseEvent& event)
{
    const AutoFilterUserEdit::Step step = m_impl->outcome.step();
    event.accept();
    const QModelIndex entry = view()->indexAt(event.pos());
    if (!isEnabledEntry(entry)) {
        // QComboBox would activate the last entry that was under the mouse.
        if (m_impl->listEvents.resendOutside(viewport, event)) {
            m_itemClicked = false;
        }
        return true;
    }
    view()->setCurrentIndex(entry);
    // A slot may delete the combo box, and QComboBox accesses itself after activated(int). So the signal is emitted
    // later.
    m_impl->announcement = Impl::Announcement::Held;
    m_itemClicked = true;
    if (!m_impl->listEvents.resend(viewport, event)) {
        return true;
    }
    m_itemClicked = false;
    const bool isDue = m_impl->announcement == Impl::Announcement::Due;
    m_impl->announcement = Impl::Announcement::AtOnce;
    if (isDue) {
        Q_EMIT selectionComplete();
    }
    return true;
}

void ComboBoxAutoFilter::onItemClicked(const QModelIndex&)
{
    m_itemClicked = true;
}

void ComboBoxAutoFilter::onEditingFinished()
{
    const AutoFilterUserEdit::Step step = m_impl->outcome.step();
    const QPointer<ComboBoxAutoFilter> self(this);
    const bool isTaken = takeOutcome();
    if (!self) {
        return;
    }
    if (m_impl->mode == FormField && lineEdit() && !isTaken) {
        cancelEdit();
        return;
    }
    closeSelf();
    Q_EMIT selectionComplete();
}

void ComboBoxAutoFilter::onEditingCanceled()
{
    if (m_impl->mode == FormField) {
        cancelEdit();
        return;
    }
    setCurrentIndex(m_indexBeforeEdit);
    closeSelf();
    Q_EMIT editingCanceled();
}

void ComboBoxAutoFilter::cancelEdit()
{
    const AutoFilterUserEdit::Step step = m_impl->outcome.step();
    setCurrentIndex(m_impl->outcome.rowBeforeEdit());
    m_impl->outcome.clearPick();
    closeSelf();
    Q_EMIT editingCanceled();
}

void ComboBoxAutoFilter::onCurrentIndexChanged(const QModelIndex& index)
{
    const AutoFilterUserEdit::Step step = m_impl->outcome.step();
    if (index.row() != currentIndex()) {
        m_impl->outcome.beginEdit();
    }
    setCurrentIndex(index.row());
    m_impl->outcome.pickCurrent();
}

void ComboBoxAutoFilter::onItemActivated(int index)
{
    if (m_indexBeforeEdit == -1) {
        m_indexBeforeEdit = index;
    }
    m_impl->outcome.beginEdit();
    m_impl->outcome.pickCurrent();
    if (!m_itemClicked) {
        return;
    }
    m_itemClicked = false;
    validateEntry();
    closeSelf();
    if (m_impl->announcement == Impl::Announcement::AtOnce) {
        Q_EMIT selectionComplete();
    } else {
        m_impl->announcement = Impl::Announcement::Due;
    }
}

void ComboBoxAutoFilter::keyPressEvent(QKeyEvent* event)
{
    const AutoFilterUserEdit::Step step = m_impl->outcome.step();
    const QPointer<ComboBoxAutoFilter> self(this);
    m_impl->suggestions.followModel();
    if (m_impl->mode == FormField && handleFieldKey(*event)) {
        return;
    }
    const bool isEscape = event->key() == Qt::Key_Escape && m_impl->mode == SingleEdit;
    if (isEscape) {
        m_escapePressed = true;
        closeSelf();
        Q_EMIT editingCanceled();
    }
    if (self) {
        QComboBox::keyPressEvent(event);
    }
    if (isEscape) {
        // The key has cancelled this edit and must not close the dialog.
        event->accept();
    } else if (self) {
        m_impl->suggestions.mark();
    }
}

bool ComboBoxAutoFilter::handleFieldKey(QKeyEvent& event)
{
    const bool isUnfinished = m_impl->outcome.isEditUnfinished();
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return handleFieldReturn(event);
    case Qt::Key_Tab:
        if (isUnfinished) {
            onEditingFinished();
        }
        event.ignore();
        return true;
    case Qt::Key_Escape:
        if (isUnfinished) {
            cancelEdit();
        }
        // Repeats of the key that has cancelled the edit must not close the dialog.
        event.setAccepted(isUnfinished || event.isAutoRepeat());
        return true;
    default:
        return false;
    }
}

bool ComboBoxAutoFilter::handleFieldReturn(QKeyEvent& event)
{
    const bool isUnfinished = m_impl->outcome.isEditUnfinished();
    const bool isHeld = event.isAutoRepeat();
    if (!isHeld && (isUnfinished || (AutoFilterLineEdit::of(*this) && currentIndex() >= 0))) {
        onEditingFinished();
    }
    event.setAccepted(isUnfinished || isHeld);
    return true;
}

void ComboBoxAutoFilter::inputMethodEvent(QInputMethodEvent* event)
{
    const QPointer<ComboBoxAutoFilter> self(this);
    m_impl->suggestions.followModel();
    QComboBox::inputMethodEvent(event);
    if (self) {
        m_impl->suggestions.mark();
    }
}

void ComboBoxAutoFilter::wheelEvent(QWheelEvent* event)
{
    const AutoFilterUserEdit::Step step = m_impl->outcome.step();
    const QPointer<ComboBoxAutoFilter> self(this);
    QComboBox::wheelEvent(event);
    // Without the focus, no focusOutEvent() ends the edit later.
    if (self && m_impl->mode == FormField && !hasFocus() && m_impl->outcome.isEditBegun()) {
        onEditingFinished();
    }
}

void ComboBoxAutoFilter::focusInEvent(QFocusEvent* event)
{
    m_impl->focusWatch.stop();
    m_impl->suggestions.followModel();
    QComboBox::focusInEvent(event);
}

void ComboBoxAutoFilter::focusOutEvent(QFocusEvent* event)
{
    QComboBox::focusOutEvent(event);
    if (m_impl->mode == SingleEdit) {
        return;
    }
    if (AutoFilterLineEdit* const line = AutoFilterLineEdit::of(*this)) {
        line->showUnfocused(*event);
    }
    // QComboBox gives its own list the focus with the same reason as other widgets.
    const QWidget* const now = QApplication::focusWidget();
    const bool isInList = now && view()->window()->isAncestorOf(now) && view()->window() != window();
    if (isInList || AutoFilterFocusWatch::comesBackAfter(event->reason())) {
        watchFocus();
    } else if (m_impl->outcome.isEditUnfinished()) {
        onEditingFinished();
    }
}

void ComboBoxAutoFilter::watchFocus()
{
    m_impl->focusWatch.start([this] {
        if (m_impl->outcome.isEditUnfinished()) {
            onEditingFinished();
        }
    });
}

void ComboBoxAutoFilter::finishEditing()
{
    onEditingFinished();
}

void ComboBoxAutoFilter::closeSelf()
{
    // Closing the combo box hides its list, but not the completer's popup.
    m_impl->suggestions.hide();
    m_impl->outcome.endEdit();
    if (m_impl->mode == SingleEdit) {
        close();
        return;
    }
    if (view()->isVisible()) {
        hidePopup();
    }
    if (lineEdit() && window()->focusWidget() == this) {
        lineEdit()->selectAll();
    }
}

} // namespace morvane::ui
