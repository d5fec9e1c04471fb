// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "e2e/Screen.h"

#include <gtest/gtest.h>

#include <QPoint>
#include <QRect>

#include <functional>
#include <memory>

class QAbstractItemView;
class QModelIndex;
class QWidget;

namespace morvane::test {

/**
 * Shows widgets of the test itself on a real X server, and operates them with keyboard and mouse.
 *
 * The program starts an X server with a window manager for itself and is its client (HandsMain.cpp). Key and mouse
 * events pass through the server and the window manager. The tests read the results from the widgets:
 *
 * @code
 * QLineEdit line;
 * show(line);
 * type(QStringLiteral("abc"));
 * press(Key::Return);
 * EXPECT_EQ(line.text(), QStringLiteral("abc"));
 * @endcode
 *
 * press(), type(), click(), drag() and wheel() return when the program has processed their events. In a modal loop,
 * ModalScript plays the user; its steps may call all of these functions. If an action starts something that ends later
 * (a timer, a thread), wait for it with eventually().
 */
class HandsTest : public ::testing::Test
{
protected:
    HandsTest();
    ~HandsTest() override;
    void SetUp() override;
    void TearDown() override;

    /** Shows the window and waits until keys reach it. */
    void show(QWidget& window);
    /** Makes another window of the program the active one, and waits for that. */
    void activate(QWidget& window);

    void press(Key key);
    void press(std::initializer_list<Key> held, Key key);
    void press(std::initializer_list<Key> held, char character);
    /** Types text of ASCII characters. */
    void type(const QString& text);

    /** In the middle of the widget. */
    void click(const QWidget& widget);
    /** At a position in the widget. */
    void click(const QWidget& widget, QPoint position);
    void click(const QAbstractItemView& view, const QModelIndex& index);
    void doubleClick(const QAbstractItemView& view, const QModelIndex& index);
    /** Positions are those of the screen; see onScreen(). */
    void drag(QPoint from, QPoint to);
    void wheel(const QWidget& widget, Turn direction, int notches = 1);

    /** The position on the screen, in its pixels, of a position in a widget. */
    static QPoint onScreen(const QWidget& widget, QPoint position);
    static QPoint onScreen(const QWidget& widget);
    static QPoint onScreen(const QAbstractItemView& view, const QModelIndex& index);

    /** Returns when the program has processed all earlier actions with keyboard and mouse. */
    void settle();

    /** For single steps, such as pressing a button without releasing it; call settle() after them. */
    Screen& screen();

private:
    struct Impl;
    const std::unique_ptr<Impl> m_impl;
};

} // namespace morvane::test
