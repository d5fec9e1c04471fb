// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/controls/ComboBoxAutoFilter.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QWindow>

namespace morvane::test {

/** Presses a key as a window system does: sends it to the open popup, or else to the window that has the keyboard. */
inline void pressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QWidget* const popup = QApplication::activePopupWidget();
    const QPointer<QWindow> window(popup ? popup->windowHandle() : QGuiApplication::focusWindow());
    ASSERT_TRUE(window);
    QTest::keyPress(window.data(), key, modifiers);
    if (window) {
        QTest::keyRelease(window.data(), key, modifiers);
    }
}

/** Types Latin text through the window that has the keyboard. */
inline void type(const QString& text)
{
    for (const QChar character : text) {
        QWidget* const popup = QApplication::activePopupWidget();
        QTest::keyClick(popup ? popup->windowHandle() : QGuiApplication::focusWindow(), character.toLatin1());
    }
}

/** A form in a shown, active window: a field, the combo box, a field; the combo box has the focus. */
class ComboBoxForm : public ::testing::Test
{
protected:
    ComboBoxForm()
    {
        auto* const layout = new QHBoxLayout(&window);
        layout->addWidget(&before);
        layout->addWidget(box);
        layout->addWidget(&after);
    }

    void setUp(const QStringList& items, Qt::CaseSensitivity sensitivity = Qt::CaseInsensitive,
        QCompleter::CompletionMode mode = QCompleter::PopupCompletion)
    {
        box->setList(items);
        box->setCompleterAttributes(true, mode, sensitivity, Qt::ElideRight, Qt::MatchContains);
        show();
    }

    void show()
    {
        window.show();
        box->show();
        activate();
        box->setFocus();
        ASSERT_TRUE(QTest::qWaitFor([this] { return box->hasFocus(); }));
    }

    // On the offscreen platform, no window is active after a popup is closed.
    void activate()
    {
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    void openList()
    {
        box->showPopup();
        ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activePopupWidget() == box->view()->window(); }));
        ASSERT_TRUE(QTest::qWaitForWindowExposed(box->view()->window()));
    }

    QAbstractItemView* completerPopup() const { return box->completer()->popup(); }

    void clickEntry(int row)
    {
        QAbstractItemView* const list = box->view();
        const QPoint place = list->visualRect(list->model()->index(row, 0)).center();
        QTest::mousePress(list->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, place);
    }

    void expectOutcome(int completed, int canceled)
    {
        QCoreApplication::processEvents();
        EXPECT_EQ(complete.count(), completed);
        EXPECT_EQ(cancel.count(), canceled);
    }

    QWidget window;
    QLineEdit before;
    QPointer<ui::ComboBoxAutoFilter> box = new ui::ComboBoxAutoFilter(nullptr);
    QLineEdit after;
    QSignalSpy complete{box.data(), SIGNAL(selectionComplete())};
    QSignalSpy cancel{box.data(), SIGNAL(editingCanceled())};
};

} // namespace morvane::test
