// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/CorrectFontCommandLinkButton.h"

#include <gtest/gtest.h>

#include <QHBoxLayout>
#include <QScrollArea>
#include <QTest>
#include <QVBoxLayout>

#include <algorithm>
#include <cstdlib>

namespace {

/** sizeHint() is not public in QCommandLinkButton, but it is in QWidget. */
QSize preferred(const QWidget& button)
{
    return button.sizeHint();
}

/** The largest difference of a colour component, 0 to 255, over all pixels of @p shown. */
int largestDifference(const QImage& shown, const QImage& wanted)
{
    int largest = 0;
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x) {
            const QColor one(shown.pixel(x, y));
            const QColor other(wanted.pixel(x, y));
            largest = std::max({largest, std::abs(one.red() - other.red()), std::abs(one.green() - other.green()),
                std::abs(one.blue() - other.blue())});
        }
    }
    return largest;
}

class CorrectFontCommandLinkButtonTest : public ::testing::Test
{
protected:
    CorrectFontCommandLinkButtonTest()
    {
        button->setText("Start the measurement with the settings of the last run");
        window.setLayout(new QVBoxLayout);
        window.layout()->addWidget(button);
    }

    void show()
    {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    QWidget window;
    morvane::ui::CorrectFontCommandLinkButton* button = new morvane::ui::CorrectFontCommandLinkButton;
};

const QString longDescription("Every channel is zeroed, the old file is kept beside the new one, and the run starts "
                              "as soon as the temperature is stable for five minutes.");

} // namespace

TEST_F(CorrectFontCommandLinkButtonTest, isNeverSmallerThanItPrefers)
{
    EXPECT_EQ(button->minimumSizeHint(), preferred(*button));
    button->setDescription(longDescription);
    EXPECT_EQ(button->minimumSizeHint(), preferred(*button));
    button->setText("");
    EXPECT_EQ(button->minimumSizeHint(), preferred(*button));
}

TEST_F(CorrectFontCommandLinkButtonTest, keepsItsPreferredSizeWhereTheLayoutOverflows)
{
    button->setDescription(longDescription);
    QScrollArea area;
    area.setWidgetResizable(true);
    area.setWidget(&window);
    area.resize(60, 30);
    area.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&area));
    EXPECT_GE(button->width(), preferred(*button).width());
    EXPECT_GE(button->height(), preferred(*button).height());
    EXPECT_GT(button->width(), area.viewport()->width());
    area.takeWidget();
}

TEST_F(CorrectFontCommandLinkButtonTest, showsTheWholeWrappedDescriptionInANarrowLayout)
{
    button->setFocusPolicy(Qt::NoFocus); // some styles draw a focus frame
    button->setDescription(longDescription);
    show();
    window.resize(40, 20);
    ASSERT_TRUE(QTest::qWaitFor([this] { return button->width() >= preferred(*button).width(); }));
    EXPECT_GE(button->height(), static_cast<const QWidget&>(*button).heightForWidth(button->width()));

    QWidget elsewhere;
    morvane::ui::CorrectFontCommandLinkButton roomy(&elsewhere);
    roomy.setText(button->text());
    roomy.setDescription(longDescription);
    roomy.resize(button->width(), 2 * button->height());
    // The additional part of the larger button must be blank; then the smaller one cuts off no line of text.
    const QImage shown = button->grab().toImage().convertToFormat(QImage::Format_RGB32);
    QImage wanted = roomy.grab().toImage().convertToFormat(QImage::Format_RGB32);
    EXPECT_LE(largestDifference(shown, wanted), 32); // text in a window is smoothed differently
    wanted = wanted.copy(0, button->height(), button->width(), button->height());
    QImage blank(wanted.size(), wanted.format());
    blank.fill(wanted.pixel(0, 0));
    EXPECT_EQ(wanted, blank);
}

TEST_F(CorrectFontCommandLinkButtonTest, sharesANarrowRowWithoutBeingSqueezed)
{
    QWidget row;
    auto* const layout = new QHBoxLayout(&row);
    auto* const first = new morvane::ui::CorrectFontCommandLinkButton;
    auto* const second = new morvane::ui::CorrectFontCommandLinkButton;
    for (auto* const link : {first, second}) {
        link->setText("Start");
        link->setDescription(longDescription);
        layout->addWidget(link);
    }
    row.show();
    row.resize(10, 10);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&row));
    for (auto* const link : {first, second}) {
        EXPECT_GE(link->width(), preferred(*link).width());
        EXPECT_GE(link->height(), preferred(*link).height());
    }
    EXPECT_FALSE(first->geometry().intersects(second->geometry()));
}

TEST_F(CorrectFontCommandLinkButtonTest, aPlainOneCanBeSqueezed)
{
    const QCommandLinkButton plain("Start", longDescription);
    EXPECT_LT(static_cast<const QWidget&>(plain).minimumSizeHint().height(), preferred(plain).height());
}

TEST_F(CorrectFontCommandLinkButtonTest, makesItsWindowWideEnough)
{
    show();
    window.resize(1, 1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return window.width() >= preferred(*button).width(); }));
}

TEST_F(CorrectFontCommandLinkButtonTest, growsWithItsFont)
{
    show();
    const QSize before = button->minimumSizeHint();
    QFont font = button->font();
    font.setPointSize(font.pointSize() * 3);
    button->setFont(font);
    button->setText(button->text() + "!");
    EXPECT_EQ(button->minimumSizeHint(), preferred(*button));
    EXPECT_GE(button->minimumSizeHint().width(), before.width());
    EXPECT_TRUE(QTest::qWaitFor([this] { return button->width() >= preferred(*button).width(); }));
}
