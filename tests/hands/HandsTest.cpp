// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "hands/HandsTest.h"

#include "e2e/Eventually.h"
#include "hands/Fence.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDir>
#include <QWidget>

namespace morvane::test {

struct HandsTest::Impl
{
    Impl() : screen(qgetenv("DISPLAY")) {}

    Screen screen;
    Fence fence;
};

HandsTest::HandsTest() : m_impl(qEnvironmentVariableIsSet("MORVANE_HANDS_MISSING") ? nullptr : std::make_unique<Impl>())
{
}

HandsTest::~HandsTest() = default;

void HandsTest::SetUp()
{
    if (!m_impl) {
        GTEST_SKIP() << "not installed: " << qgetenv("MORVANE_HANDS_MISSING").constData();
    }
    ASSERT_TRUE(m_impl->screen.isOpen());
    screen().move(QPoint(0, 0));
}

void HandsTest::TearDown()
{
    if (m_impl && HasFailure()) {
        const QString name =
            QString::fromLatin1(::testing::UnitTest::GetInstance()->current_test_info()->name()).replace('/', '-');
        const QString picture = QDir(QStringLiteral(MORVANE_PICTURES)).filePath(name + QStringLiteral(".png"));
        QDir().mkpath(QStringLiteral(MORVANE_PICTURES));
        if (screen().savePicture(picture)) {
            std::printf("the screen: %s\n", qPrintable(picture));
        }
    }
}

Screen& HandsTest::screen()
{
    return m_impl->screen;
}

void HandsTest::settle()
{
    m_impl->fence.pass();
}

void HandsTest::show(QWidget& window)
{
    window.show();
    activate(window);
}

void HandsTest::activate(QWidget& window)
{
    window.activateWindow();
    ASSERT_TRUE(eventually([&] {
        settle();
        return window.isActiveWindow();
    })) << "the window does not become the active one: "
        << m_impl->fence.describeFocus(window);
    settle();
    // The window manager moves a window that it has put a frame around.
    ASSERT_TRUE(eventually([&] { return m_impl->fence.isAt(window, onScreen(window, QPoint(0, 0))); }))
        << "the window is not where the program believes";
}

void HandsTest::press(Key key)
{
    press({}, key);
}

void HandsTest::press(std::initializer_list<Key> held, Key key)
{
    screen().press(held, key);
    settle();
}

void HandsTest::press(std::initializer_list<Key> held, char character)
{
    screen().press(held, character);
    settle();
}

void HandsTest::type(const QString& text)
{
    screen().type(text);
    settle();
}

void HandsTest::click(const QWidget& widget)
{
    click(widget, widget.rect().center());
}

void HandsTest::click(const QWidget& widget, QPoint position)
{
    screen().click(onScreen(widget, position));
    settle();
}

void HandsTest::click(const QAbstractItemView& view, const QModelIndex& index)
{
    screen().click(onScreen(view, index));
    settle();
}

void HandsTest::doubleClick(const QAbstractItemView& view, const QModelIndex& index)
{
    // So that the clicks count as a double click on a slow machine, too.
    const int interval = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(timeLimitMs);
    click(view, index);
    click(view, index);
    QApplication::setDoubleClickInterval(interval);
}

void HandsTest::drag(QPoint from, QPoint to)
{
    screen().drag(from, to);
    settle();
}

void HandsTest::wheel(const QWidget& widget, Turn direction, int notches)
{
    screen().wheel(onScreen(widget), direction, notches);
    settle();
}

QPoint HandsTest::onScreen(const QWidget& widget, QPoint position)
{
    return widget.mapToGlobal(position) * widget.devicePixelRatioF();
}

QPoint HandsTest::onScreen(const QWidget& widget)
{
    return onScreen(widget, widget.rect().center());
}

QPoint HandsTest::onScreen(const QAbstractItemView& view, const QModelIndex& index)
{
    return onScreen(*view.viewport(), view.visualRect(index).center());
}

} // namespace morvane::test
