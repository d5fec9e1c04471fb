// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

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

/** Input of a user: sends keyboard and mouse events to the widgets to which a user would send them. */
namespace gallery::tour {

/** Clicks the centre of @p widget, or the indicator of a check box or radio button. The widget must be enabled. */
void click(QWidget& widget);
/** Scrolls to @p index and clicks it. */
void clickItem(QAbstractItemView& view, const QModelIndex& index, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
/** Clicks an entry of a menu bar or of an open menu. */
void clickAction(QMenuBar& bar, QAction& action);
void clickAction(QMenu& menu, QAction& action);
void press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
/** Clicks the field, selects its text, and types @p text key by key. */
void type(QLineEdit& field, const QString& text);

/** Returns @p complaint if @p asExpected is false, otherwise an empty text. For the result of a step. */
QString expect(bool asExpected, const QString& complaint);
QString expect(bool asExpected, const char* complaint);

/** Returns the active modal window if it is a visible T, otherwise null. */
template <typename T>
T* modal()
{
    auto* const window = qobject_cast<T*>(QApplication::activeModalWidget());
    return window && window->isVisible() ? window : nullptr;
}

} // namespace gallery::tour
