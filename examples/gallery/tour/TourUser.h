#pragma once

#include <QApplication>
#include <QString>
#include <QWidget>

class QAbstractItemView;
class QAction;
class QLineEdit;
class QMenu;
class QMenuBar;
class QModelIndex;

/** What a user's hands do: events of the keyboard and the mouse, where a user would cause them. */
namespace gallery::tour {

/** Clicks into the middle of @p widget, for check boxes and radio buttons on their mark. It must be enabled. */
void click(QWidget& widget);
/** Clicks @p index, after scrolling to it. */
void clickItem(QAbstractItemView& view, const QModelIndex& index, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
/** Clicks an entry of a menu bar or of an open menu. */
void clickAction(QMenuBar& bar, QAction& action);
void clickAction(QMenu& menu, QAction& action);
void press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
/** Clicks into the field, selects what stands there, and types @p text key by key. */
void type(QLineEdit& field, const QString& text);

/** What a step reports when @p asExpected is false: @p complaint; otherwise an empty text. */
QString expect(bool asExpected, const QString& complaint);
QString expect(bool asExpected, const char* complaint);

/** The innermost modal window when it is a visible T, otherwise null. */
template <typename T>
T* modal()
{
    auto* const window = qobject_cast<T*>(QApplication::activeModalWidget());
    return window && window->isVisible() ? window : nullptr;
}

} // namespace gallery::tour
