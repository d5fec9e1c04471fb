// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>
#include <QRect>
#include <QString>

#include <initializer_list>
#include <memory>

namespace morvane::test {

/** Keys other than characters, with the numbers that X gives them. */
enum class Key : unsigned long
{
    Space = 0x20,
    Backspace = 0xff08,
    Tab = 0xff09,
    Return = 0xff0d,
    Escape = 0xff1b,
    Left = 0xff51,
    Up = 0xff52,
    Right = 0xff53,
    Down = 0xff54,
    Home = 0xff50,
    PageUp = 0xff55,
    PageDown = 0xff56,
    End = 0xff57,
    Enter = 0xff8d, ///< on the numeric keypad
    F4 = 0xffc1,
    Shift = 0xffe1,
    Control = 0xffe3,
    Alt = 0xffe9,
    Delete = 0xffff,
};

/** The direction in which a user turns the mouse wheel. */
enum class Turn : unsigned
{
    Up = 4,
    Down = 5,
    Left = 6,
    Right = 7,
};

/**
 * Keyboard, mouse and eyes of a user of an X server. It is a separate client, which sends events with the XTEST
 * extension. Like real events, they pass through the server and the window manager. Positions are screen positions.
 */
class Screen
{
public:
    /** @param display the name of the server, as in the variable DISPLAY */
    explicit Screen(const QByteArray& display);
    ~Screen();
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    /** Whether the server is there and has the extension. */
    bool isOpen() const;

    void press(Key key);
    void press(std::initializer_list<Key> held, char character);
    void press(std::initializer_list<Key> held, Key key);
    /** Types text of ASCII characters. */
    void type(const QString& text);
    void click(QPoint position);
    void click(QPoint position, Key held);
    void doubleClick(QPoint position);
    void drag(QPoint from, QPoint to);
    /** The steps of a click or drag, one by one. */
    void move(QPoint position);
    void pressButton(QPoint position);
    void releaseButton(QPoint position);
    /** Turns the wheel by this number of whole notches. */
    void wheel(QPoint position, Turn direction, int notches = 1);

    /** Whether a window manager manages the screen. */
    bool isManaged() const;
    /** The title of the window that the window manager has made the active one; empty for none. */
    QString activeTitle() const;
    /** The place of the list, menu or tip that is open above all windows; empty when there is none. */
    QRect popup() const;
    /** Asks the window manager to close the active window, as its close button does. */
    void closeActiveWindow();

    /** Writes a picture of the whole screen. */
    bool savePicture(const QString& fileName) const;

private:
    struct Impl;
    const std::unique_ptr<Impl> m_impl;
};

} // namespace morvane::test
