// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "hands/HandsTest.h"

#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include "support/ModalScript.h"

namespace morvane::test {

namespace {

TEST_F(HandsTest, typesIntoTheWindowInFront)
{
    QLineEdit line;
    show(line);
    type(QStringLiteral("Abc 1.5E-7"));
    EXPECT_EQ(line.text(), QStringLiteral("Abc 1.5E-7"));
    press({Key::Control}, 'a');
    press(Key::Delete);
    EXPECT_TRUE(line.text().isEmpty());
}

TEST_F(HandsTest, clicksAreTakenInWhenTheCallReturns)
{
    QWidget window;
    QVBoxLayout layout(&window);
    QPushButton button(QStringLiteral("Press"));
    QLineEdit line;
    layout.addWidget(&line);
    layout.addWidget(&button);
    int clicks = 0;
    QObject::connect(&button, &QPushButton::clicked, &window, [&] { ++clicks; });
    show(window);
    for (int number = 1; number <= 5; ++number) {
        click(button);
        EXPECT_EQ(clicks, number);
    }
    EXPECT_TRUE(button.hasFocus());
}

TEST_F(HandsTest, aClickGoesToTheWindowItHits)
{
    QLineEdit first;
    QLineEdit second;
    first.setGeometry(100, 100, 200, 40);
    second.setGeometry(100, 300, 200, 40);
    show(first);
    show(second);
    click(first);
    type(QStringLiteral("one"));
    click(second);
    type(QStringLiteral("two"));
    EXPECT_EQ(first.text(), QStringLiteral("one"));
    EXPECT_EQ(second.text(), QStringLiteral("two"));
}

TEST_F(HandsTest, theWheelTurnsByNotches)
{
    QScrollBar bar(Qt::Vertical);
    bar.setRange(0, 100);
    bar.setSingleStep(1);
    bar.resize(20, 200);
    show(bar);
    wheel(bar, Turn::Down, 2);
    const int down = bar.value();
    EXPECT_GT(down, 0);
    wheel(bar, Turn::Up, 1);
    EXPECT_EQ(bar.value(), down / 2);
}

TEST_F(HandsTest, stepsOfAModalLoopUseTheSameHands)
{
    ModalScript user;
    user.on<QDialog>([this](QDialog& dialog) {
        activate(dialog);
        press(Key::Escape);
    });
    QDialog dialog;
    EXPECT_EQ(dialog.exec(), QDialog::Rejected);
    EXPECT_TRUE(user.finished());
}

} // namespace

} // namespace morvane::test
