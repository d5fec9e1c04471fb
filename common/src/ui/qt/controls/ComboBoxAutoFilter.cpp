#include "ui/qt/controls/ComboBoxAutoFilter.h"

#include "ui/qt/controls/AutoFilterEdit_p.h"
#include "ui/qt/controls/AutoFilterEntries_p.h"
#include "ui/qt/controls/AutoFilterItemView_p.h"
#include "ui/qt/controls/AutoFilterLineEdit_p.h"
#include "ui/qt/controls/AutoFilterPick_p.h"
#include "ui/qt/util/GuiThread_p.h"

#include <ctkCompleter.h>

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>

#include <utility>

namespace morvane::ui {

struct ComboBoxAutoFilter::Impl
{
    EditMode mode = SingleEdit;
    std::shared_ptr<AutoFilterEdit> edit = std::make_shared<AutoFilterEdit>();
    AutoFilterPick pick;
    QPersistentModelIndex current;
    /** Watches where the focus goes while another window, a menu or a popup has it. */
    QMetaObject::Connection away;
    QPointer<QAbstractItemModel> followedModel;
    int followedColumn = 0;
};

namespace {

/** How many suggestions are searched with each key for the one to be marked. */
constexpr int mostSuggestionsSearched = 10000;

void setUniformItemSizes(QAbstractItemView* view)
{
    if (auto* const list = qobject_cast<QListView*>(view)) {
        list->setUniformItemSizes(true);
    }
}

AutoFilterLineEdit* ownLine(const QComboBox& box)
{
    return dynamic_cast<AutoFilterLineEdit*>(box.lineEdit());
}

bool endsEditing(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Tab || key == Qt::Key_Escape;
}

bool movesMark(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return true;
    case Qt::Key_Home:
    case Qt::Key_End:
        return event.modifiers() & Qt::ControlModifier;
    default:
        return false;
    }
}

bool leavesAtEnd(const QAbstractItemView& popup, int key)
{
    const int row = popup.currentIndex().row();
    const bool isLast = row >= 0 && row == popup.model()->rowCount() - 1;
    return (key == Qt::Key_Up && row == 0) || (key == Qt::Key_Down && isLast);
}

/** Reasons after which the focus comes back by itself. */
bool isAwayOnly(Qt::FocusReason reason)
{
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason;
}

} // namespace

ComboBoxAutoFilter::ComboBoxAutoFilter(QWidget* parent) : QComboBox(parent), m_impl(std::make_unique<Impl>())
{
    expectGuiThread("ComboBoxAutoFilter");
    auto* const list = new AutoFilterItemView;
    setView(list);
    // Filters installed later come first: these come before the ones of the popup that holds the list.
    list->installEventFilter(this);
    list->viewport()->installEventFilter(this);

    connect(list, SIGNAL(pressed(const QModelIndex&)), this, SLOT(onItemClicked(const QModelIndex&)));
    connect(list, SIGNAL(editingFinished()), this, SLOT(onEditingFinished()));
    connect(list, SIGNAL(editingCanceled()), this, SLOT(onEditingCanceled()));
    connect(
        list, SIGNAL(currentIndexChanged(QModelIndex const&)), this, SLOT(onCurrentIndexChanged(QModelIndex const&)));
    connect(this, SIGNAL(activated(int)), this, SLOT(onItemActivated(int)));
    connect(this, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this] {
        followModel();
        const QModelIndex entry = currentEntry();
        const bool hasOnlyMoved = entry.isValid() && entry == m_impl->current;
        m_impl->current = entry;
        if (!hasOnlyMoved && !m_impl->edit->isInStep()) {
            m_impl->edit->end();
        }
    });
}

ComboBoxAutoFilter::~ComboBoxAutoFilter()
{
    disconnect(m_impl->away);
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
    m_completer = new ctkCompleter(model(), this);
    m_impl->followedModel = model();
    m_impl->followedColumn = m_completer->completionColumn();
    m_completer->setModelFiltering(ctkCompleter::FilterContains);
    m_completer->setCompletionMode(mode);
    if (QAbstractItemView* const popup = m_completer->popup()) {
        popup->setTextElideMode(elide);
        popup->installEventFilter(this);
        popup->viewport()->installEventFilter(this);
        // Marking an entry lays the popup out with every key, and measuring each entry would take most of the time.
        setUniformItemSizes(popup);
    }
    m_completer->setCaseSensitivity(cs);
    followModel();
    setCompleter(m_completer);
    connectLine();
    setUniformItemSizes(view());
    setInsertPolicy(QComboBox::NoInsert);
}

void ComboBoxAutoFilter::connectLine()
{
    if (!lineEdit()) {
        return;
    }
    // QComboBox would take the entry that equals the text, also a disabled one. takeOutcome() does what is left of it.
    disconnect(lineEdit(), SIGNAL(editingFinished()), this, nullptr);
    connect(lineEdit(), SIGNAL(editingFinished()), this, SLOT(onEditingFinished()));
    connect(lineEdit(), &QLineEdit::textEdited, this, [this] {
        m_impl->pick.clear();
        m_impl->edit->begin(currentEntry());
        if (m_impl->mode == FormField) {
            // While the suggestions are open, the completer keeps the loss of the focus to itself.
            watchFocusFromAway();
        }
    });
}

void ComboBoxAutoFilter::followModel()
{
    if (!m_completer) {
        return;
    }
    if (m_impl->followedModel != model()) {
        m_impl->followedModel = model();
        m_completer->setSourceModel(model());
    }
    if (m_impl->followedColumn != modelColumn()) {
        m_impl->followedColumn = modelColumn();
        m_completer->setCompletionColumn(modelColumn());
    }
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

bool ComboBoxAutoFilter::validateEntry()
{
    if (m_escapePressed && m_impl->mode == SingleEdit) {
        return true;
    }
    const int index = findOutcome();
    if (index < 0) {
        return false;
    }
    takeRow(index);
    // The program goes on with this entry, and so does a user who cancels.
    m_impl->edit->setBefore(currentEntry());
    return true;
}

int ComboBoxAutoFilter::findOutcome() const
{
    if (!lineEdit()) {
        return -1;
    }
    const int picked = m_impl->pick.row(*this);
    if (picked >= 0) {
        return picked;
    }
    const bool isField = m_impl->mode == FormField;
    const QString text = lineEdit()->text();
    if (isField && currentIndex() >= 0 && text == itemText(currentIndex())) {
        return currentIndex();
    }
    return findEntry(
        *model(), modelColumn(), rootModelIndex(), text, isField ? EntryPreference::Equal : EntryPreference::First);
}

void ComboBoxAutoFilter::takeRow(int row)
{
    const AutoFilterEdit::Step step(m_impl->edit, currentEntry());
    const bool isPicked = row == m_impl->pick.row(*this);
    setCurrentIndex(row);
    if (isPicked) {
        m_impl->pick.setTaken();
    }
}

bool ComboBoxAutoFilter::takeOutcome()
{
    const int before = currentIndex();
    const QString text = lineEdit() ? lineEdit()->text() : QString();
    const bool isValid = validateEntry();
    if (isValid && currentIndex() != before && itemText(currentIndex()) == text) {
        announceActivation();
    }
    return isValid;
}

void ComboBoxAutoFilter::announceActivation()
{
    const QPointer<ComboBoxAutoFilter> self(this);
    const QString text = itemText(currentIndex());
    Q_EMIT activated(currentIndex());
    if (self) {
        Q_EMIT textActivated(text);
    }
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    if (self) {
        // By name, since calling it is deprecated.
        QMetaObject::invokeMethod(this, "activated", Q_ARG(QString, text));
    }
#endif
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
    const AutoFilterEdit::Step step(m_impl->edit, currentEntry());
    followModel();
    const int before = currentIndex();
    const int index = findOutcome();
    if (index >= 0) {
        takeRow(index);
    }
    if (currentIndex() != before) {
        m_impl->edit->begin(currentEntry());
    }
    if (m_indexBeforeEdit == -1) {
        m_indexBeforeEdit = currentIndex();
    }
    QComboBox::showPopup();
}

QModelIndex ComboBoxAutoFilter::currentEntry() const
{
    return model()->index(currentIndex(), modelColumn(), rootModelIndex());
}

QAbstractItemView* ComboBoxAutoFilter::suggestions() const
{
    return m_completer && lineEdit() && lineEdit()->completer() == m_completer ? m_completer->popup() : nullptr;
}

bool ComboBoxAutoFilter::hasUnfinishedEdit() const
{
    return m_impl->edit->isBegun() ||
           (lineEdit() && lineEdit()->text() != itemText(currentIndex()).left(lineEdit()->maxLength()));
}

bool ComboBoxAutoFilter::event(QEvent* event)
{
    const bool isField = m_impl->mode == FormField;
    if (isField && event->type() == QEvent::ShortcutOverride && hasUnfinishedEdit() &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    // The combo box has the focus for its line, and QWidget would hand Tab to the focus chain before the line sees it.
    if (AutoFilterLineEdit::isTabPress(*event) && (isField || ownLine(*this))) {
        const QPointer<ComboBoxAutoFilter> self(this);
        const QWidget* const focused = window()->focusWidget();
        keyPressEvent(static_cast<QKeyEvent*>(event));
        if (isField) {
            event->accept();
        }
        // A slot may have moved it, by hiding or disabling the field for instance.
        if (isField && self && window()->focusWidget() == focused) {
            focusNextPrevChild(true);
        }
        return true;
    }
    return QComboBox::event(event);
}

bool ComboBoxAutoFilter::eventFilter(QObject* watched, QEvent* event)
{
    if (event == m_resent) {
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
    if (const QAbstractItemView* const popup = suggestions()) {
        if (watched == popup && type == QEvent::KeyPress) {
            return filterCompleterKey(*watched, static_cast<QKeyEvent&>(*event));
        }
        if (watched == popup->viewport()) {
            return filterSuggestions(*watched, *event);
        }
    }
    return QComboBox::eventFilter(watched, event);
}

bool ComboBoxAutoFilter::resend(QObject& receiver, QEvent& event)
{
    const QPointer<ComboBoxAutoFilter> self(this);
    const QEvent* const outer = std::exchange(m_resent, &event);
    QCoreApplication::sendEvent(&receiver, &event);
    if (self) {
        m_resent = outer;
    }
    return self;
}

bool ComboBoxAutoFilter::resendOutside(QObject& viewport, const QMouseEvent& event)
{
    QMouseEvent outside(event.type(), QPointF(-1, -1), event.button(), event.buttons(), event.modifiers());
    return resend(viewport, outside);
}

bool ComboBoxAutoFilter::filterListKey(QKeyEvent& event)
{
    // An entry that was pressed but let go elsewhere is not what a key picks.
    m_itemClicked = false;
    if (event.key() == Qt::Key_Escape) {
        // The popup would close on this and leave no key press for the list to cancel with.
        event.accept();
        return true;
    }
    // Return picks on the way of this event.
    const AutoFilterEdit::Step step(m_impl->edit, currentEntry());
    resend(*view(), event);
    return true;
}

bool ComboBoxAutoFilter::filterListTab(QKeyEvent& event)
{
    const bool isBack = event.key() == Qt::Key_Backtab;
    if (m_impl->mode == SingleEdit || (event.key() != Qt::Key_Tab && !isBack)) {
        return false;
    }
    const AutoFilterEdit::Step step(m_impl->edit, currentEntry());
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
    const AutoFilterEdit::Step step(m_impl->edit, currentEntry());
    event.accept();
    const QModelIndex entry = view()->indexAt(event.pos());
    if (!isEnabledEntry(entry)) {
        // QComboBox would take the entry that the mouse was over last.
        if (resendOutside(viewport, event)) {
            m_itemClicked = false;
        }
        return true;
    }
    view()->setCurrentIndex(entry);
    // QComboBox goes on using itself after activated(int), so nobody is told before it is done.
    m_announcement = Announcement::Held;
    m_itemClicked = true;
    if (!resend(viewport, event)) {
        return true;
    }
    m_itemClicked = false;
    const bool isDue = m_announcement == Announcement::Due;
    m_announcement = Announcement::AtOnce;
    if (isDue) {
        Q_EMIT selectionComplete();
    }
    return true;
}

bool ComboBoxAutoFilter::filterCompleterKey(QObject& popup, QKeyEvent& event)
{
    if (endsEditing(event.key())) {
        // Past the completer, which would go on using itself after a slot has deleted it with the combo box.
        m_impl->edit->begin(currentEntry());
        suggestions()->hide();
        QCoreApplication::sendEvent(this, &event);
        return true;
    }
    if (movesMark(event) && lineEdit()) {
        moveCompleterMark(popup, event);
        return true;
    }
    return false;
}

void ComboBoxAutoFilter::moveCompleterMark(QObject& popup, QKeyEvent& event)
{
    const bool isMarkedByUser = m_impl->pick.isSet();
    if (!isMarkedByUser && leavesAtEnd(*suggestions(), event.key())) {
        followCompleterMark();
    } else if (resend(popup, event)) {
        followCompleterMark();
    }
}

void ComboBoxAutoFilter::followCompleterMark()
{
    const QAbstractItemView* const popup = suggestions();
    AutoFilterLineEdit* const line = ownLine(*this);
    if (!popup || !line) {
        return;
    }
    line->keepMark();
    const QModelIndex entry = entryOfSuggestion(popup->currentIndex(), *model());
    if (!isEnabledEntry(entry) || !popup->selectionModel()->isSelected(popup->currentIndex())) {
        m_impl->pick.clear();
        return;
    }
    const QString text = itemText(entry.row());
    if (line->text() != text) {
        line->setText(text);
    }
    m_impl->pick.set(entry, line->text());
}

void ComboBoxAutoFilter::markOutcome()
{
    AutoFilterLineEdit* const line = ownLine(*this);
    const QAbstractItemView* const popup = suggestions();
    if (!line || line->keepsMark() || !popup || !popup->isVisible()) {
        return;
    }
    const bool isField = m_impl->mode == FormField;
    if (!isField && isEnabledEntry(popup->currentIndex())) {
        return;
    }
    const QAbstractItemModel& suggested = *popup->model();
    const int column = m_completer->completionColumn();
    const int row = findEntry(suggested, column, QModelIndex(), line->text(),
        isField ? EntryPreference::Equal : EntryPreference::First, mostSuggestionsSearched);
    line->markSuggestion(suggested.index(row, column));
}

bool ComboBoxAutoFilter::filterSuggestions(QObject& viewport, QEvent& event)
{
    const QEvent::Type type = event.type();
    const bool isMouse =
        type == QEvent::MouseButtonPress || type == QEvent::MouseMove || type == QEvent::MouseButtonRelease;
    if (!isMouse) {
        return false;
    }
    auto& mouse = static_cast<QMouseEvent&>(event);
    if (type == QEvent::MouseButtonRelease && mouse.button() == Qt::LeftButton) {
        return filterSuggestionRelease(viewport, mouse);
    }
    if (type == QEvent::MouseMove && mouse.buttons() == Qt::NoButton) {
        return false;
    }
    if (resend(viewport, event)) {
        followCompleterMark();
    }
    return true;
}

bool ComboBoxAutoFilter::filterSuggestionRelease(QObject& viewport, QMouseEvent& event)
{
    const AutoFilterEdit::Step step(m_impl->edit, currentEntry());
    const QPersistentModelIndex entry = entryOfSuggestion(suggestions()->indexAt(event.pos()), *model());
    event.accept();
    if (!isEnabledEntry(entry)) {
        // The popup would close over an entry that cannot be had.
        resendOutside(viewport, event);
        return true;
    }
    if (!resend(viewport, event) || !entry.isValid()) {
        return true;
    }
    // QCompleter takes it only where it was pressed, too.
    const bool isTaken = currentIndex() == entry.row();
    setCurrentIndex(entry.row());
    m_impl->pick.set(currentEntry(), currentText());
    const QPointer<ComboBoxAutoFilter> self(this);
    if (!isTaken) {
        announceActivation();
    }
    if (self) {
        onEditingFinished();
    }
    return true;
}

void ComboBoxAutoFilter::onItemClicked(const QModelIndex&)
{
    m_itemClicked = true;
}

void ComboBoxAutoFilter::onEditingFinished()
{
    const AutoFilterEdit::Step step(m_impl->edit, currentEntry());
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
    const AutoFilterEdit::Step step(m_impl->edit, currentEntry());
    const AutoFilterEdit& edit = *m_impl->edit;
    setCurrentIndex(edit.isBegun() ? edit.rowBefore(currentIndex()) : currentIndex());
    m_impl->pick.clear();
    closeSelf();
    Q_EMIT editingCanceled();
}

void ComboBoxAutoFilter::onCurrentIndexChanged(const QModelIndex& index)
{
    const AutoFilterEdit::Step step(m_impl->edit, currentEntry());
    if (index.row() != currentIndex()) {
        m_impl->edit->begin(currentEntry());
    }
    setCurrentIndex(index.row());
    m_impl->pick.set(currentEntry(), currentText());
    m_impl->pick.setTaken();
}

void ComboBoxAutoFilter::onItemActivated(int index)
{
    if (m_indexBeforeEdit == -1) {
        m_indexBeforeEdit = index;
    }
    m_impl->edit->begin(currentEntry());
    m_impl->pick.set(currentEntry(), currentText());
    m_impl->pick.setTaken();
    if (!m_itemClicked) {
        return;
    }
    m_itemClicked = false;
    validateEntry();
    closeSelf();
    if (m_announcement == Announcement::AtOnce) {
        Q_EMIT selectionComplete();
    } else {
        m_announcement = Announcement::Due;
    }
}

void ComboBoxAutoFilter::keyPressEvent(QKeyEvent* event)
{
    const AutoFilterEdit::Step step(m_impl->edit, currentEntry());
    const QPointer<ComboBoxAutoFilter> self(this);
    followModel();
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
        // It has cancelled this edit, and not the dialog around.
        event->accept();
    } else if (self) {
        markOutcome();
    }
}

bool ComboBoxAutoFilter::handleFieldKey(QKeyEvent& event)
{
    const bool isUnfinished = hasUnfinishedEdit();
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
        // Held down, the key that has cancelled this edit goes on cancelling nothing else.
        event.setAccepted(isUnfinished || event.isAutoRepeat());
        return true;
    default:
        return false;
    }
}

bool ComboBoxAutoFilter::handleFieldReturn(QKeyEvent& event)
{
    const bool isUnfinished = hasUnfinishedEdit();
    const bool isHeld = event.isAutoRepeat();
    if (!isHeld && (isUnfinished || (ownLine(*this) && currentIndex() >= 0))) {
        onEditingFinished();
    }
    event.setAccepted(isUnfinished || isHeld);
    return true;
}

void ComboBoxAutoFilter::inputMethodEvent(QInputMethodEvent* event)
{
    const QPointer<ComboBoxAutoFilter> self(this);
    followModel();
    QComboBox::inputMethodEvent(event);
    if (self) {
        markOutcome();
    }
}

void ComboBoxAutoFilter::wheelEvent(QWheelEvent* event)
{
    const AutoFilterEdit::Step step(m_impl->edit, currentEntry());
    const QPointer<ComboBoxAutoFilter> self(this);
    QComboBox::wheelEvent(event);
    // Without the focus, there is no losing it.
    if (self && m_impl->mode == FormField && !hasFocus() && m_impl->edit->isBegun()) {
        onEditingFinished();
    }
}

void ComboBoxAutoFilter::focusInEvent(QFocusEvent* event)
{
    disconnect(m_impl->away);
    followModel();
    QComboBox::focusInEvent(event);
}

void ComboBoxAutoFilter::focusOutEvent(QFocusEvent* event)
{
    QComboBox::focusOutEvent(event);
    if (m_impl->mode == SingleEdit) {
        return;
    }
    if (AutoFilterLineEdit* const line = ownLine(*this)) {
        line->showUnfocused(*event);
    }
    // QComboBox gives its own list the focus as if it were any other widget.
    const QWidget* const now = QApplication::focusWidget();
    const bool isInList = now && view()->window()->isAncestorOf(now) && view()->window() != window();
    if (isInList || isAwayOnly(event->reason())) {
        watchFocusFromAway();
    } else if (hasUnfinishedEdit()) {
        onEditingFinished();
    }
}

void ComboBoxAutoFilter::watchFocusFromAway()
{
    disconnect(m_impl->away);
    m_impl->away = connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        const bool isElsewhere = now && now != this && !isAncestorOf(now) && now->window() == window();
        if (isElsewhere) {
            disconnect(m_impl->away);
            if (hasUnfinishedEdit()) {
                onEditingFinished();
            }
        }
    });
}

void ComboBoxAutoFilter::finishEditing()
{
    onEditingFinished();
}

void ComboBoxAutoFilter::closeSelf()
{
    // Closing takes the combo box's own list along, but not the completer's.
    if (QAbstractItemView* const popup = m_completer ? m_completer->popup() : nullptr) {
        popup->hide();
    }
    m_impl->edit->end();
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
