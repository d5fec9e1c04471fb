// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/MainWindow.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QMainWindow>
#include <QVBoxLayout>

#include <memory>

namespace {

using morvane::ui::findMainWindow;

TEST(MainWindowTest, withoutAMainWindowReturnsNull)
{
    if (findMainWindow(false)) {
        GTEST_SKIP() << "an earlier test of this process has found one";
    }
    const QWidget plain;
    const QDialog dialog;
    EXPECT_EQ(findMainWindow(false), nullptr);
    EXPECT_EQ(findMainWindow(true), nullptr);
}

TEST(MainWindowTest, looksOnUntilThereIsOne)
{
    if (findMainWindow(false)) {
        GTEST_SKIP() << "an earlier test of this process has found one";
    }
    QMainWindow window;
    EXPECT_EQ(findMainWindow(false), &window);
}

TEST(MainWindowTest, findsAHiddenMainWindowAmongOtherWidgets)
{
    const QWidget plain;
    const QDialog dialog;
    QMainWindow window;
    EXPECT_EQ(findMainWindow(true), &window);
}

TEST(MainWindowTest, passesOverAMainWindowInsideAnother)
{
    QWidget frame;
    auto* const inner = new QMainWindow(&frame);
    inner->setWindowFlags(Qt::Widget);
    ASSERT_FALSE(inner->isWindow());
    QMainWindow window;
    EXPECT_EQ(findMainWindow(true), &window);
}

TEST(MainWindowTest, takesTheFirstOfSeveralInTheOrderOfQt)
{
    QMainWindow windows[5];
    QMainWindow* first = nullptr;
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget* const widget : widgets) {
        first = first ? first : qobject_cast<QMainWindow*>(widget);
    }
    EXPECT_EQ(findMainWindow(true), first);
    EXPECT_TRUE(std::any_of(std::begin(windows), std::end(windows), [first](auto& w) { return &w == first; }));
}

TEST(MainWindowTest, remembersTheWindowEvenAfterItIsGone)
{
    auto window = std::make_unique<QMainWindow>();
    const QMainWindow* const found = findMainWindow(true);
    ASSERT_EQ(found, window.get());
    QMainWindow second;
    window.reset();
    EXPECT_EQ(findMainWindow(false), found);
    EXPECT_EQ(findMainWindow(true), &second);
    EXPECT_EQ(findMainWindow(false), &second);
}

TEST(MainWindowTest, aSearchThatFindsNothingKeepsTheOldWindow)
{
    auto window = std::make_unique<QMainWindow>();
    const QMainWindow* const found = findMainWindow(true);
    ASSERT_EQ(found, window.get());
    window.reset();
    EXPECT_EQ(findMainWindow(true), found);
    EXPECT_EQ(findMainWindow(false), found);
}

} // namespace
