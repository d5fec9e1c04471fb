// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "hands/Fence.h"

#include "e2e/Eventually.h"
#include "support/QtShims.h"

#include <gtest/gtest.h>

#include <QAbstractNativeEventFilter>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

#include <cstring>

#include <poll.h>
#include <qpa/qwindowsysteminterface.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <xcb/xcb.h>

namespace morvane::test {

namespace {

constexpr int patienceMs = 100;

} // namespace

struct Fence::Impl final : QAbstractNativeEventFilter
{
    Impl()
        : display(XOpenDisplay(nullptr)),
          token(XInternAtom(display, "_MORVANE_FENCE", False)),
          extents(XInternAtom(display, "_NET_FRAME_EXTENTS", False)),
          probe(XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, 1, 1, 0, 0, 0))
    {
        XSelectInput(display, probe, PropertyChangeMask);
        receiver.winId();
        QCoreApplication::instance()->installNativeEventFilter(this);
    }

    ~Impl() override
    {
        QCoreApplication::instance()->removeNativeEventFilter(this);
        XCloseDisplay(display);
    }

    Impl(const Impl&) = delete;
    Impl& operator=(const Impl&) = delete;

    bool nativeEventFilter(const QByteArray& type, void* message, NativeEventResult* /*result*/) override
    {
        if (type != "xcb_generic_event_t") {
            return false;
        }
        constexpr int sentMask = 0x7f;
        const auto* const event = static_cast<const xcb_generic_event_t*>(message);
        if ((event->response_type & sentMask) != XCB_CLIENT_MESSAGE) {
            return false;
        }
        const auto* const text = static_cast<const xcb_client_message_event_t*>(message);
        if (text->type != token) {
            return false;
        }
        arrived = static_cast<long>(text->data.data32[0]);
        return true;
    }

    XEvent messageTo(Window window, Atom type) const
    {
        XEvent event;
        std::memset(&event, 0, sizeof event);
        event.xclient.type = ClientMessage;
        event.xclient.window = window;
        event.xclient.message_type = type;
        event.xclient.format = 32;
        return event;
    }

    /** The window manager handles events in order: when it answers, it has passed on all events that it held back. */
    bool waitForWindowManager()
    {
        // Counted, because processEvents() may run a step of a modal loop that asks as well: each question has its
        // answer.
        const long number = askWindowManager();
        QElapsedTimer time;
        time.start();
        QElapsedTimer sinceQuestion;
        sinceQuestion.start();
        while (!time.hasExpired(timeLimitMs)) {
            countAnswers();
            if (answered >= number) {
                return true;
            }
            // Now and then Openbox answers and keeps the answer, with all else that it has for the server, until
            // another event comes.
            if (sinceQuestion.hasExpired(patienceMs)) {
                askWindowManager();
                sinceQuestion.start();
            }
            // The window manager may be waiting for this program.
            QCoreApplication::processEvents();
            ::pollfd connection{ConnectionNumber(display), POLLIN, 0};
            ::poll(&connection, 1, 1);
        }
        return false;
    }

    /** Returns the number of the question. */
    long askWindowManager()
    {
        XEvent question = messageTo(probe, XInternAtom(display, "_NET_REQUEST_FRAME_EXTENTS", False));
        XSendEvent(
            display, DefaultRootWindow(display), False, SubstructureNotifyMask | SubstructureRedirectMask, &question);
        XFlush(display);
        return ++asked;
    }

    void countAnswers()
    {
        XEvent event;
        while (XPending(display)) {
            XNextEvent(display, &event);
            if (event.type == PropertyNotify && event.xproperty.atom == extents) {
                ++answered;
            }
        }
    }

    bool waitForOwnEvent()
    {
        XEvent event = messageTo(static_cast<Window>(receiver.internalWinId()), token);
        const long number = ++sent;
        event.xclient.data.l[0] = number;
        XSendEvent(display, event.xclient.window, False, NoEventMask, &event);
        XFlush(display);
        return eventually([&] { return arrived >= number; });
    }

    ::Display* const display;
    const Atom token;
    const Atom extents;
    const Window probe;
    QWidget receiver; // never shown
    long asked = 0;   // questions to the window manager
    long answered = 0;
    long sent = 0;
    long arrived = 0;
};

Fence::Fence() : m_impl(std::make_unique<Impl>()) {}

Fence::~Fence() = default;

bool Fence::isAt(const QWidget& window, QPoint position) const
{
    int x = 0;
    int y = 0;
    Window child = None;
    constexpr int nearEnough = 4; // positions are rounded where the screen is scaled
    ::Display* const display = m_impl->display;
    return XTranslateCoordinates(display, static_cast<Window>(window.internalWinId()), DefaultRootWindow(display), 0, 0,
               &x, &y, &child) &&
           (QPoint(x, y) - position).manhattanLength() < nearEnough;
}

std::string Fence::describeFocus(const QWidget& window) const
{
    ::Display* const display = m_impl->display;
    Window focus = None;
    int revertTo = 0;
    XGetInputFocus(display, &focus, &revertTo);
    Window active = None;
    Atom type = None;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char* value = nullptr;
    XGetWindowProperty(display, DefaultRootWindow(display), XInternAtom(display, "_NET_ACTIVE_WINDOW", False), 0, 1,
        False, XA_WINDOW, &type, &format, &count, &left, &value);
    if (value != nullptr) {
        if (count == 1) {
            std::memcpy(&active, value, sizeof active);
        }
        XFree(value);
    }
    const QWindow* const ofQt = QGuiApplication::focusWindow();
    return "the window is " + std::to_string(window.internalWinId()) + ", the server's focus is on " +
           std::to_string(focus) + ", the window manager's on " + std::to_string(active) + ", Qt's on " +
           std::to_string(ofQt ? ofQt->winId() : 0);
}

void Fence::pass()
{
    QGuiApplication::sync(); // what Qt has for the server comes before the question
    EXPECT_TRUE(m_impl->waitForWindowManager()) << "the window manager does not answer";
    EXPECT_TRUE(m_impl->waitForOwnEvent()) << "the event of the test itself does not arrive";
    QWindowSystemInterface::flushWindowSystemEvents();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

} // namespace morvane::test
