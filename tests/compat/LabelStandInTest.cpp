// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/compat/QxtLabel.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>

#include <functional>

using morvane::compat::QxtLabel;

namespace {

const QString ellipsis(QChar(0x2026));
const QString path("measurements/2024/run-17/pressure.dat");

class LabelStandIn : public ::testing::Test
{
protected:
    LabelStandIn()
    {
        label.setText(path);
        QPalette palette;
        palette.setColor(QPalette::Window, Qt::white);
        palette.setColor(QPalette::WindowText, Qt::black);
        label.setPalette(palette);
        label.setAutoFillBackground(true);
    }

    QImage picture() { return label.grab().toImage().convertToFormat(QImage::Format_RGB32); }

    /** The expected picture of a label of this size; @p draw paints it. */
    QImage drawn(const std::function<void(QPainter&)>& draw) const
    {
        QImage image(label.size(), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setFont(label.font());
        draw(painter);
        return image;
    }

    QRect ink()
    {
        const QImage image = picture();
        QRect result;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y).lightness() < 128) {
                    result |= QRect(x, y, 1, 1);
                }
            }
        }
        return result;
    }

    int advance(const QString& text) const { return label.fontMetrics().horizontalAdvance(text); }

    QxtLabel label;
};

} // namespace

TEST_F(LabelStandIn, startsCentredElidedInTheMiddleAndUpright)
{
    const QxtLabel fresh("text");
    EXPECT_EQ(fresh.text(), "text");
    EXPECT_EQ(fresh.alignment(), Qt::AlignCenter);
    EXPECT_EQ(fresh.elideMode(), Qt::ElideMiddle);
    EXPECT_EQ(fresh.rotation(), QxtLabel::NoRotation);
    EXPECT_EQ(QxtLabel().text(), "");
}

TEST_F(LabelStandIn, wantsRoomForTheTextAndInsistsOnTheEllipsis)
{
    const int height = label.fontMetrics().height();
    EXPECT_EQ(label.sizeHint(), QSize(advance(path), height));
    EXPECT_EQ(label.minimumSizeHint(), QSize(advance(ellipsis), height));
    label.setElideMode(Qt::ElideNone);
    EXPECT_EQ(label.minimumSizeHint(), label.sizeHint());
}

TEST_F(LabelStandIn, theFrameAddsToTheSizeAndIsPainted)
{
    const QSize plain = label.sizeHint();
    label.setFrameStyle(QFrame::Box);
    label.setLineWidth(3);
    EXPECT_EQ(label.sizeHint(), plain + QSize(3 + 3, 3 + 3));
    label.resize(label.sizeHint());
    EXPECT_EQ(label.contentsRect().size(), plain);
    const QImage image = picture();
    EXPECT_LT(image.pixelColor(1, image.height() / 2).lightness(), 200);
    EXPECT_LT(image.pixelColor(image.width() - 2, image.height() / 2).lightness(), 200);
}

TEST_F(LabelStandIn, marginsAddToTheSizeAndMoveTheText)
{
    const QSize plain = label.sizeHint();
    label.setContentsMargins(50, 0, 1, 7);
    EXPECT_EQ(label.sizeHint(), plain + QSize(50 + 1, 7));
    label.resize(label.sizeHint());
    EXPECT_TRUE(label.contentsRect().contains(ink()));
}

TEST_F(LabelStandIn, elidesWhereItIsTold)
{
    label.setAlignment(Qt::AlignLeft);
    label.resize(advance(path) / 2, label.sizeHint().height());
    for (const auto mode : {Qt::ElideLeft, Qt::ElideMiddle, Qt::ElideRight}) {
        label.setElideMode(mode);
        const QString shown = label.fontMetrics().elidedText(path, mode, label.width());
        ASSERT_TRUE(shown.contains(ellipsis));
        EXPECT_EQ(picture(), drawn([&](QPainter& painter) { painter.drawText(label.rect(), Qt::AlignLeft, shown); }))
            << mode;
    }
}

TEST_F(LabelStandIn, cutsOffAtTheEdgeWithoutEliding)
{
    label.setAlignment(Qt::AlignLeft);
    label.setElideMode(Qt::ElideNone);
    label.resize(advance(path) / 2, label.sizeHint().height());
    EXPECT_EQ(picture(), drawn([&](QPainter& painter) { painter.drawText(label.rect(), Qt::AlignLeft, path); }));
}

TEST_F(LabelStandIn, aTextThatFitsExactlyIsWhole)
{
    label.setAlignment(Qt::AlignLeft);
    for (int length = 1; length <= path.size(); ++length) {
        label.setText(path.left(length));
        label.resize(advance(label.text()), label.sizeHint().height());
        ASSERT_EQ(picture(), drawn([&](QPainter& painter) {
            painter.drawText(label.rect(), Qt::AlignLeft, label.text());
        })) << length;
    }
}

TEST_F(LabelStandIn, alignsTheText)
{
    label.setText("x");
    label.resize(200, 100);
    const QPoint middle = label.rect().center();
    label.setAlignment(Qt::AlignLeft | Qt::AlignTop);
    EXPECT_LT(ink().right(), middle.x());
    EXPECT_LT(ink().bottom(), middle.y());
    label.setAlignment(Qt::AlignRight | Qt::AlignBottom);
    EXPECT_GT(ink().left(), middle.x());
    EXPECT_GT(ink().top(), middle.y());
    label.setAlignment(Qt::AlignCenter);
    EXPECT_TRUE(ink().adjusted(-4, -4, 4, 4).contains(middle));
}

TEST_F(LabelStandIn, leftIsTheLeadingEdge)
{
    label.setText("x");
    label.setAlignment(Qt::AlignLeft);
    label.resize(200, 30);
    label.setLayoutDirection(Qt::RightToLeft);
    EXPECT_GT(ink().left(), 150);
}

TEST_F(LabelStandIn, turnsTheText)
{
    const QSize upright = label.sizeHint();
    label.setRotation(QxtLabel::Clockwise);
    EXPECT_EQ(label.sizeHint(), upright.transposed());
    EXPECT_EQ(label.minimumSizeHint().height(), advance(ellipsis));

    label.setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label.setText("x");
    label.resize(100, 200);
    EXPECT_TRUE(QRect(70, 0, 30, 30).contains(ink()));
    label.setRotation(QxtLabel::UpsideDown);
    EXPECT_TRUE(QRect(70, 170, 30, 30).contains(ink()));
    label.setRotation(QxtLabel::CounterClockwise);
    EXPECT_TRUE(QRect(0, 170, 30, 30).contains(ink()));
    label.setProperty("rotation", 0);
    EXPECT_TRUE(QRect(0, 0, 30, 30).contains(ink()));
}

TEST_F(LabelStandIn, elidesATurnedTextToTheHeight)
{
    label.setRotation(QxtLabel::Clockwise);
    label.resize(label.sizeHint().width(), advance(path) / 2);
    const QRect marks = ink();
    EXPECT_GT(marks.height(), label.height() * 3 / 4);
    label.setElideMode(Qt::ElideNone);
    EXPECT_NE(ink(), QRect());
}

TEST_F(LabelStandIn, aNewFontChangesTheSizeAndTheLayout)
{
    QWidget window;
    auto* const layout = new QHBoxLayout(&window);
    auto* const child = new QxtLabel(path, &window);
    child->setElideMode(Qt::ElideNone);
    layout->addWidget(child);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    const int before = child->width();
    QFont font = child->font();
    font.setPointSize(font.pointSize() * 2);
    child->setFont(font);
    EXPECT_GT(child->sizeHint().width(), before * 3 / 2);
    EXPECT_TRUE(QTest::qWaitFor([&] { return child->width() >= child->sizeHint().width(); }));
}

TEST_F(LabelStandIn, saysOnceThatTheTextChanged)
{
    QSignalSpy changes(&label, SIGNAL(textChanged(QString)));
    label.setText("a");
    label.setText("a");
    ASSERT_EQ(changes.count(), 1);
    EXPECT_EQ(changes.at(0).at(0).toString(), "a");
    QMetaObject::invokeMethod(&label, "setText", Q_ARG(QString, "b"));
    EXPECT_EQ(changes.count(), 2);
    EXPECT_EQ(label.property("text").toString(), "b");
}

TEST_F(LabelStandIn, markupMnemonicsAndLineBreaksAreText)
{
    label.setAlignment(Qt::AlignLeft);
    label.setText("<b>a&b</b>");
    EXPECT_EQ(label.sizeHint().width(), advance("<b>a&b</b>"));
    label.resize(label.sizeHint());
    EXPECT_EQ(picture(), drawn([&](QPainter& painter) { painter.drawText(label.rect(), 0, "<b>a&b</b>"); }));
    label.setText("one\ntwo");
    EXPECT_EQ(label.sizeHint().height(), label.fontMetrics().height());
}

TEST_F(LabelStandIn, paintsNothingInNoRoom)
{
    label.resize(0, 0);
    label.grab();
    label.setFrameStyle(QFrame::Box);
    label.setLineWidth(10);
    label.resize(5, 5);
    label.grab();
    label.setText("");
    label.resize(50, 20);
    label.setFrameStyle(QFrame::NoFrame);
    EXPECT_EQ(ink(), QRect());
}

TEST_F(LabelStandIn, isClickedWithAnyButtonAnywhere)
{
    label.resize(50, 20);
    label.show();
    QSignalSpy clicks(&label, SIGNAL(clicked()));
    QTest::mouseClick(&label, Qt::LeftButton);
    QTest::mouseClick(&label, Qt::RightButton);
    EXPECT_EQ(clicks.count(), 2);
    QTest::mousePress(&label, Qt::LeftButton);
    QTest::mouseRelease(&label, Qt::LeftButton, {}, QPoint(500, 500));
    EXPECT_EQ(clicks.count(), 3);
    QTest::mouseRelease(&label, Qt::LeftButton);
    EXPECT_EQ(clicks.count(), 3);
}

TEST_F(LabelStandIn, aLongPressIsNoClick)
{
    label.resize(50, 20);
    label.show();
    const int interval = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(0);
    QSignalSpy clicks(&label, SIGNAL(clicked()));
    QTest::mouseClick(&label, Qt::LeftButton);
    QApplication::setDoubleClickInterval(interval);
    EXPECT_EQ(clicks.count(), 0);
}
