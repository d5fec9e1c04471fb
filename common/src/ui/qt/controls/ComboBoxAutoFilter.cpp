#include "ui/qt/controls/ComboBoxAutoFilter.h"

#include "ui/qt/controls/AutoFilterItemView.h"
#include "ui/qt/controls/AutoFilterLineEdit.h"
#include "ui/qt/util/GuiThread.h"

#include <ctkCompleter.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QStringMatcher>

namespace morvane::ui {

namespace {

void setUniformItemSizes(QAbstractItemView* view)
{
    if (auto* const list = qobject_cast<QListView*>(view)) {
        list->setUniformItemSizes(true);
    }
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

} // namespace

ComboBoxAutoFilter::ComboBoxAutoFilter(QWidget* parent) : QComboBox(parent)
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
}

ComboBoxAutoFilter::~ComboBoxAutoFilter()
{
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
    m_completer->setModelFiltering(ctkCompleter::FilterContains);
    m_completer->setCompletionMode(mode);
    if (QAbstractItemView* const popup = m_completer->popup()) {
        popup->setTextElideMode(elide);
        popup->installEventFilter(this);
        // Marking an entry lays the popup out with every key, and measuring each entry would take most of the time.
        setUniformItemSizes(popup);
    }
    m_completer->setCaseSensitivity(cs);
    setCompleter(m_completer);
    if (lineEdit()) {
        connect(lineEdit(), SIGNAL(editingFinished()), this, SLOT(onEditingFinished()));
    }
    setUniformItemSizes(view());
    setInsertPolicy(QComboBox::NoInsert);
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

bool ComboBoxAutoFilter::validateEntry()
{
    if (m_escapePressed) {
        return true;
    }
    const int index = findLineText();
    if (index < 0) {
        return false;
    }
    setCurrentIndex(index);
    return true;
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
    const int index = findLineText();
    if (index >= 0) {
        setCurrentIndex(index);
    }
    if (m_indexBeforeEdit == -1) {
        m_indexBeforeEdit = currentIndex();
    }
    QComboBox::showPopup();
}

bool ComboBoxAutoFilter::event(QEvent* event)
{
    // The combo box has the focus for its line, and QWidget would hand Tab to the focus chain before the line sees it.
    if (AutoFilterLineEdit::isTabPress(*event) && dynamic_cast<AutoFilterLineEdit*>(lineEdit())) {
        keyPressEvent(static_cast<QKeyEvent*>(event));
        return true;
    }
    return QComboBox::event(event);
}

bool ComboBoxAutoFilter::eventFilter(QObject* watched, QEvent* event)
{
    if (m_isResending) {
        return false;
    }
    if (watched == view() && event->type() == QEvent::ShortcutOverride) {
        return filterListKey(static_cast<QKeyEvent&>(*event));
    }
    if (watched == view()->viewport() && event->type() == QEvent::MouseButtonRelease) {
        return filterListRelease(*watched, *event);
    }
    if (event->type() == QEvent::KeyPress && m_completer && watched == m_completer->popup()) {
        return filterCompleterKey(*watched, static_cast<QKeyEvent&>(*event));
    }
    return QComboBox::eventFilter(watched, event);
}

bool ComboBoxAutoFilter::filterListKey(QKeyEvent& event)
{
    // An entry that was pressed but let go elsewhere is not what a key picks.
    m_itemClicked = false;
    if (event.key() != Qt::Key_Escape) {
        return false;
    }
    // The popup would close on this and leave no key press for the list to cancel with.
    event.accept();
    return true;
}

bool ComboBoxAutoFilter::filterListRelease(QObject& viewport, QEvent& event)
{
    // QComboBox goes on using itself after activated(int), so nobody is told before it is done.
    const QPointer<ComboBoxAutoFilter> self(this);
    m_announcement = Announcement::Held;
    m_isResending = true;
    QCoreApplication::sendEvent(&viewport, &event);
    event.accept();
    if (!self) {
        return true;
    }
    m_isResending = false;
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
        m_completer->popup()->hide();
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
    const AutoFilterLineEdit::CompleterDetached detached(*lineEdit(), *m_completer);
    const QPointer<ComboBoxAutoFilter> self(this);
    m_isResending = true;
    QCoreApplication::sendEvent(&popup, &event);
    if (self) {
        m_isResending = false;
    }
}

void ComboBoxAutoFilter::onItemClicked(const QModelIndex&)
{
    m_itemClicked = true;
}

void ComboBoxAutoFilter::onEditingFinished()
{
    validateEntry();
    closeSelf();
    Q_EMIT selectionComplete();
}

void ComboBoxAutoFilter::onEditingCanceled()
{
    setCurrentIndex(m_indexBeforeEdit);
    closeSelf();
    Q_EMIT editingCanceled();
}

void ComboBoxAutoFilter::onCurrentIndexChanged(const QModelIndex& index)
{
    setCurrentIndex(index.row());
}

void ComboBoxAutoFilter::onItemActivated(int index)
{
    if (m_indexBeforeEdit == -1) {
        m_indexBeforeEdit = index;
    }
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
    if (event->key() == Qt::Key_Escape) {
        const QPointer<ComboBoxAutoFilter> self(this);
        m_escapePressed = true;
        closeSelf();
        Q_EMIT editingCanceled();
        if (!self) {
            return;
        }
    }
    QComboBox::keyPressEvent(event);
}

void ComboBoxAutoFilter::finishEditing()
{
    onEditingFinished();
}

int ComboBoxAutoFilter::findLineText() const
{
    if (!lineEdit()) {
        return -1;
    }
    // What findText(text, Qt::MatchContains) finds, with the text prepared once instead of for each entry.
    const QStringMatcher text(lineEdit()->text(), Qt::CaseInsensitive);
    const QAbstractItemModel& entries = *model();
    const int rows = count();
    for (int row = 0; row < rows; ++row) {
        const QModelIndex entry = entries.index(row, modelColumn(), rootModelIndex());
        if (text.indexIn(entries.data(entry).toString()) >= 0) {
            return row;
        }
    }
    return -1;
}

void ComboBoxAutoFilter::closeSelf()
{
    // Closing takes the combo box's own list along, but not the completer's.
    if (QAbstractItemView* const popup = m_completer ? m_completer->popup() : nullptr) {
        popup->hide();
    }
    close();
}

} // namespace morvane::ui
