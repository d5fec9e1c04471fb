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
 * Widgets of the test itself in windows of a real X server, and the keyboard and mouse of a person in front of them.
 *
 * The program starts an X server with a window manager for itself and is its client (HandsMain.cpp). Keys and mouse
 * take the way through the server and the window manager; what the widgets do about them is read from the widgets:
 *
 * @code
 * QLineEdit line;
 * show(line);
 * type(QStringLiteral("abc"));
 * press(Key::Return);
 * EXPECT_EQ(line.text(), QStringLiteral("abc"));
 * @endcode
 *
 * Each of press(), type(), click(), drag() and wheel() returns when the program has taken in what it caused. In a modal
 * loop the user is played by ModalScript, whose steps may call all of these. What an action starts and does not finish
 * (a timer, a thread) is waited for with eventually().
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
    /** ASCII characters, as the keyboard has them. */
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

    /** Where a position in a widget is on the screen, in its pixels. */
    static QPoint onScreen(const QWidget& widget, QPoint position);
    static QPoint onScreen(const QWidget& widget);
    static QPoint onScreen(const QAbstractItemView& view, const QModelIndex& index);

    /** Returns when the program has taken in all that was done before with keyboard and mouse. */
    void settle();

    /** For single steps, such as pressing a button without releasing it; settle() afterwards. */
    Screen& screen();

private:
    struct Impl;
    const std::unique_ptr<Impl> m_impl;
};

} // namespace morvane::test
