// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "e2e/Screen.h"

#include <QImage>

#include <vector>

#include <X11/extensions/XTest.h>
#include <X11/keysym.h>
#include <X11/Xatom.h>
#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

namespace morvane::test {

namespace {

// A window may be closed before it is asked; this error must not end the tests.
int ignoreError(::Display*, XErrorEvent*)
{
    return 0;
}

KeySym symbolOf(Key key)
{
    return static_cast<KeySym>(key);
}

KeySym symbolOf(char character)
{
    return character == '\n' ? XK_Return : character == '\t' ? XK_Tab : static_cast<KeySym>(character);
}

} // namespace

struct Screen::Impl
{
    explicit Impl(const QByteArray& name) : display(XOpenDisplay(name.constData())) {}
    ~Impl()
    {
        if (display) {
            XCloseDisplay(display);
        }
    }
    Impl(const Impl&) = delete;
    Impl& operator=(const Impl&) = delete;

    void key(KeyCode code, bool down) { XTestFakeKeyEvent(display, code, down ? True : False, CurrentTime); }
    void button(bool down, unsigned number = Button1)
    {
        XTestFakeButtonEvent(display, number, down ? True : False, CurrentTime);
    }
    void move(QPoint to) { XTestFakeMotionEvent(display, DefaultScreen(display), to.x(), to.y(), CurrentTime); }
    void done() { XSync(display, False); }

    void stroke(std::initializer_list<Key> held, KeySym symbol)
    {
        const KeyCode code = XKeysymToKeycode(display, symbol);
        const KeyCode shift = XKeysymToKeycode(display, XK_Shift_L);
        const bool shifted = XkbKeycodeToKeysym(display, code, 0, 0) != symbol;
        for (const Key modifier : held) {
            key(XKeysymToKeycode(display, symbolOf(modifier)), true);
        }
        if (shifted) {
            key(shift, true);
        }
        key(code, true);
        key(code, false);
        if (shifted) {
            key(shift, false);
        }
        for (const Key modifier : held) {
            key(XKeysymToKeycode(display, symbolOf(modifier)), false);
        }
        done();
    }

    Window root() const { return DefaultRootWindow(display); }

    QByteArray property(Window window, const char* name, Atom type) const
    {
        Atom actualType = None;
        int format = 0;
        unsigned long count = 0;
        unsigned long left = 0;
        unsigned char* data = nullptr;
        XGetWindowProperty(display, window, XInternAtom(display, name, False), 0, 1024, False, type, &actualType,
            &format, &count, &left, &data);
        const auto size = static_cast<int>(count) * (format == 32 ? static_cast<int>(sizeof(long)) : format / 8);
        const QByteArray result(reinterpret_cast<const char*>(data), data ? size : 0);
        if (data) {
            XFree(data);
        }
        return result;
    }

    Window windowProperty(const char* name) const
    {
        const QByteArray bytes = property(root(), name, XA_WINDOW);
        Window window = None;
        if (bytes.size() >= static_cast<int>(sizeof window)) {
            memcpy(&window, bytes.constData(), sizeof window);
        }
        return window;
    }

    /** Empty unless the window shows without the window manager, as popups do. */
    QRect popupRectangle(Window window) const
    {
        constexpr int helper = 10; // window managers have invisible windows of some pixels
        XWindowAttributes attributes{};
        const bool isPopup = XGetWindowAttributes(display, window, &attributes) && attributes.override_redirect &&
                             attributes.map_state == IsViewable && attributes.width > helper &&
                             attributes.height > helper;
        return isPopup ? QRect(attributes.x, attributes.y, attributes.width, attributes.height) : QRect();
    }

    ::Display* const display;
};

Screen::Screen(const QByteArray& display) : m_impl(std::make_unique<Impl>(display))
{
    XSetErrorHandler(ignoreError);
}

Screen::~Screen() = default;

bool Screen::isOpen() const
{
    int ignored = 0;
    return m_impl->display && XTestQueryExtension(m_impl->display, &ignored, &ignored, &ignored, &ignored);
}

void Screen::press(Key key)
{
    m_impl->stroke({}, symbolOf(key));
}

void Screen::press(std::initializer_list<Key> held, char character)
{
    m_impl->stroke(held, symbolOf(character));
}

void Screen::press(std::initializer_list<Key> held, Key key)
{
    m_impl->stroke(held, symbolOf(key));
}

void Screen::type(const QString& text)
{
    const QByteArray characters = text.toLatin1();
    for (const char character : characters) {
        m_impl->stroke({}, symbolOf(character));
    }
}

void Screen::click(QPoint position)
{
    pressButton(position);
    releaseButton(position);
}

void Screen::click(QPoint position, Key held)
{
    const KeyCode code = XKeysymToKeycode(m_impl->display, symbolOf(held));
    m_impl->key(code, true);
    click(position);
    m_impl->key(code, false);
    m_impl->done();
}

void Screen::doubleClick(QPoint position)
{
    click(position);
    click(position);
}

void Screen::drag(QPoint from, QPoint to)
{
    m_impl->move(from);
    m_impl->button(true);
    m_impl->move((from + to) / 2);
    m_impl->move(to);
    m_impl->button(false);
    m_impl->done();
}

void Screen::move(QPoint position)
{
    m_impl->move(position);
    m_impl->done();
}

void Screen::pressButton(QPoint position)
{
    m_impl->move(position);
    m_impl->button(true);
    m_impl->done();
}

void Screen::releaseButton(QPoint position)
{
    m_impl->move(position);
    m_impl->button(false);
    m_impl->done();
}

void Screen::wheel(QPoint position, Turn direction, int notches)
{
    m_impl->move(position);
    for (int notch = 0; notch < notches; ++notch) {
        m_impl->button(true, static_cast<unsigned>(direction));
        m_impl->button(false, static_cast<unsigned>(direction));
    }
    m_impl->done();
}

bool Screen::isManaged() const
{
    return m_impl->windowProperty("_NET_SUPPORTING_WM_CHECK") != None;
}

QString Screen::activeTitle() const
{
    const Window window = m_impl->windowProperty("_NET_ACTIVE_WINDOW");
    const Atom text = XInternAtom(m_impl->display, "UTF8_STRING", False);
    return window == None ? QString() : QString::fromUtf8(m_impl->property(window, "_NET_WM_NAME", text));
}

QRect Screen::popup() const
{
    ::Display* const display = m_impl->display;
    Window root = None;
    Window parent = None;
    Window* windows = nullptr;
    unsigned count = 0;
    XQueryTree(display, m_impl->root(), &root, &parent, &windows, &count);
    QRect result;
    for (unsigned number = 0; number < count; ++number) {
        // From the lowest to the highest.
        const QRect popup = m_impl->popupRectangle(windows[number]);
        result = popup.isEmpty() ? result : popup;
    }
    if (windows) {
        XFree(windows);
    }
    return result;
}

void Screen::closeActiveWindow()
{
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = m_impl->windowProperty("_NET_ACTIVE_WINDOW");
    event.xclient.message_type = XInternAtom(m_impl->display, "_NET_CLOSE_WINDOW", False);
    event.xclient.format = 32;
    event.xclient.data.l[1] = 2; // from the user
    XSendEvent(m_impl->display, m_impl->root(), False, SubstructureNotifyMask | SubstructureRedirectMask, &event);
    m_impl->done();
}

bool Screen::savePicture(const QString& fileName) const
{
    ::Display* const display = m_impl->display;
    const int width = DisplayWidth(display, DefaultScreen(display));
    const int height = DisplayHeight(display, DefaultScreen(display));
    XImage* const image = XGetImage(
        display, m_impl->root(), 0, 0, static_cast<unsigned>(width), static_cast<unsigned>(height), AllPlanes, ZPixmap);
    if (!image) {
        return false;
    }
    const QImage picture(
        reinterpret_cast<const uchar*>(image->data), width, height, image->bytes_per_line, QImage::Format_RGB32);
    const bool saved = picture.save(fileName);
    XDestroyImage(image);
    return saved;
}

} // namespace morvane::test
