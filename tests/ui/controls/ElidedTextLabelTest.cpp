// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/ElidedTextLabel.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPainter>
#include <QTest>

namespace {

const QString ellipsis(QChar(0x2026));
const QString path("measurements/2024/run-17/pressure.dat");
const QString hebrew = QString::fromUtf8("מדידות/לחץ/טמפרטורה/תוצאות");

bool isBlank(const QImage& image)
{
    QImage white(image.size(), image.format());
    white.fill(Qt::white);
    return image == white;
}

class CountingLabel : public ElidedTextLabel
{
public:
    using ElidedTextLabel::ElidedTextLabel;
    int paints = 0;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        ++paints;
        ElidedTextLabel::paintEvent(event);
    }
};

class ElidedTextLabelTest : public ::testing::Test
{
protected:
    ElidedTextLabelTest()
    {
        QPalette palette;
        palette.setColor(QPalette::Window, Qt::white);
        palette.setColor(QPalette::WindowText, Qt::black);
        label.setPalette(palette);
        label.setAutoFillBackground(true);
        setText(path);
    }

    void setText(const QString& text)
    {
        label.setText(text);
        label.resize(label.sizeHint());
    }

    void narrow() { label.resize(label.sizeHint().width() / 2, label.sizeHint().height()); }

    QImage picture() { return label.grab().toImage().convertToFormat(QImage::Format_RGB32); }

    QImage drawn(const QString& text) const
    {
        QImage image(label.size(), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setFont(label.font());
        const bool isRightToLeft = label.text().isRightToLeft();
        painter.drawText(label.rect(),
            Qt::AlignLeft | Qt::AlignAbsolute | (isRightToLeft ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight),
            text);
        return image;
    }

    /** The longest end of the text that fits after an ellipsis; found by trying all lengths. */
    QString expected() const
    {
        const QString text = label.text();
        for (int start = 1; start < text.size(); ++start) {
            const QString shown = ellipsis + text.mid(start);
            if (label.fontMetrics().horizontalAdvance(shown) <= label.width()) {
                return shown;
            }
        }
        return ellipsis;
    }

    CountingLabel label;
};

} // namespace

TEST_F(ElidedTextLabelTest, startsAtTheLeftAndElidesThere)
{
    const ElidedTextLabel fresh;
    EXPECT_EQ(fresh.alignment(), Qt::AlignLeft);
    EXPECT_EQ(fresh.elideMode(), Qt::ElideLeft);
    EXPECT_EQ(fresh.text(), "");
    EXPECT_TRUE(qobject_cast<const morvane::compat::QxtLabel*>(&fresh));
    QWidget parent;
    const ElidedTextLabel child(&parent, Qt::Window);
    EXPECT_EQ(child.parentWidget(), &parent);
    EXPECT_TRUE(child.isWindow());
}

TEST_F(ElidedTextLabelTest, showsTheEndOfTheTextBehindAnEllipsis)
{
    narrow();
    const QImage image = picture();
    EXPECT_EQ(image, drawn(expected())) << expected().toStdString();
    EXPECT_NE(image, drawn(path));
    EXPECT_EQ(label.toolTip(), path);
}

TEST_F(ElidedTextLabelTest, showsTheWholeTextWithoutToolTipWhereItFitsExactly)
{
    EXPECT_EQ(label.width(), label.fontMetrics().horizontalAdvance(path));
    EXPECT_EQ(picture(), drawn(path));
    EXPECT_EQ(label.toolTip(), "");
    label.resize(label.width() - 1, label.height());
    EXPECT_NE(picture(), drawn(path));
    EXPECT_EQ(label.toolTip(), path);
}

TEST_F(ElidedTextLabelTest, theToolTipFollowsTheSize)
{
    label.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&label));
    narrow();
    EXPECT_TRUE(QTest::qWaitFor([this] { return label.toolTip() == path; }));
    label.resize(label.sizeHint());
    EXPECT_TRUE(QTest::qWaitFor([this] { return label.toolTip().isEmpty(); }));
}

TEST_F(ElidedTextLabelTest, theFrameTakesFromTheRoom)
{
    label.setFrameStyle(QFrame::Box);
    label.grab();
    EXPECT_EQ(label.toolTip(), path);
    label.resize(label.width() + 2 * label.frameWidth(), label.height());
    label.grab();
    EXPECT_EQ(label.toolTip(), "");
}

TEST_F(ElidedTextLabelTest, withTheLabelStandInTheSizeHintHasRoomForTheFrame)
{
    label.setFrameStyle(QFrame::Box);
    label.resize(label.sizeHint());
    label.grab();
    EXPECT_EQ(label.toolTip(), "");
}

TEST_F(ElidedTextLabelTest, aToolTipOfTheHostStays)
{
    label.setToolTip("where the file is");
    narrow();
    label.grab();
    EXPECT_EQ(label.toolTip(), "where the file is");
    label.resize(label.sizeHint());
    label.grab();
    EXPECT_EQ(label.toolTip(), "where the file is");
    label.setText("other");
    label.grab();
    EXPECT_EQ(label.toolTip(), "where the file is");
}

TEST_F(ElidedTextLabelTest, anEmptyToolTipGivesItBackToTheLabel)
{
    label.setToolTip("where the file is");
    label.setToolTip("");
    narrow();
    label.grab();
    EXPECT_EQ(label.toolTip(), path);
}

TEST_F(ElidedTextLabelTest, theToolTipFollowsTheText)
{
    narrow();
    label.grab();
    const QString other = path + "/more";
    label.setText(other);
    EXPECT_EQ(label.toolTip(), "");
    label.grab();
    EXPECT_EQ(label.toolTip(), other);
    label.setText("x");
    label.grab();
    EXPECT_EQ(label.toolTip(), "");
}

TEST_F(ElidedTextLabelTest, theToolTipFollowsTheFont)
{
    label.grab();
    ASSERT_EQ(label.toolTip(), "");
    QFont font = label.font();
    font.setPointSize(font.pointSize() * 2);
    label.setFont(font);
    EXPECT_EQ(picture(), drawn(expected()));
    EXPECT_EQ(label.toolTip(), path);
}

TEST_F(ElidedTextLabelTest, paintingNeverAsksForPainting)
{
    label.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&label));
    for (const bool cut : {true, false, true}) {
        label.resize(cut ? label.sizeHint().width() / 2 : label.sizeHint().width(), label.sizeHint().height());
        ASSERT_TRUE(QTest::qWaitFor([&] { return label.toolTip().isEmpty() != cut; }));
        const int paints = label.paints;
        for (int turn = 0; turn < 20; ++turn) {
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        }
        EXPECT_EQ(label.paints, paints);
    }
}

TEST_F(ElidedTextLabelTest, rightToLeftTextIsWholeOrInTheToolTip)
{
    setText(hebrew);
    EXPECT_EQ(picture(), drawn(hebrew));
    EXPECT_EQ(label.toolTip(), "");
    narrow();
    EXPECT_NE(picture(), drawn(hebrew));
    EXPECT_EQ(label.toolTip(), hebrew);
}

TEST_F(ElidedTextLabelTest, withTheLabelStandInRightToLeftTextKeepsItsEnd)
{
    setText(hebrew);
    narrow();
    const QString shown = label.fontMetrics().elidedText(hebrew, Qt::ElideLeft, label.width());
    ASSERT_TRUE(shown.startsWith(ellipsis));
    ASSERT_TRUE(hebrew.endsWith(shown.mid(1)));
    // The text starts on the right side, and so the ellipsis is there, too.
    EXPECT_EQ(picture(), drawn(shown));
    // Dots have no pixels above the middle of the line.
    const int dots = label.fontMetrics().horizontalAdvance(ellipsis);
    const int shownWidth = label.fontMetrics().horizontalAdvance(shown);
    const QSize upperHalf(dots - 3, label.height() / 2);
    EXPECT_TRUE(isBlank(picture().copy(QRect(QPoint(shownWidth - dots + 2, 0), upperHalf))));
    EXPECT_FALSE(isBlank(picture().copy(QRect(QPoint(1, 0), upperHalf))));
    EXPECT_EQ(label.toolTip(), hebrew);
}

TEST_F(ElidedTextLabelTest, withTheLabelStandInARightToLeftWindowPutsTheTextToTheRight)
{
    setText("x");
    label.resize(100, label.height());
    label.setLayoutDirection(Qt::RightToLeft);
    const QImage image = picture();
    EXPECT_EQ(image.copy(0, 0, 50, image.height()), drawn("").copy(0, 0, 50, image.height()));
    EXPECT_NE(image, drawn(""));
}

TEST_F(ElidedTextLabelTest, theCutNeverSplitsACharacter)
{
    const QString smileys = QString::fromUtf8("😀😁😂😃😄😅😆😇");
    const QString accents = QString::fromUtf8("e\xcc\x81"
                                              "a\xcc\x80"
                                              "o\xcc\x88"
                                              "u\xcc\x82"
                                              "n\xcc\x83"
                                              "c\xcc\xa7");
    for (const QString& text : {smileys, accents}) {
        setText(text);
        const int whole = label.sizeHint().width();
        for (int width = 1; width < whole; ++width) {
            label.resize(width, label.height());
            const QImage image = picture();
            bool isWholeCharacters = image == drawn(ellipsis) || image == drawn("");
            for (int start = 0; start < text.size(); start += 2) {
                isWholeCharacters = isWholeCharacters || image == drawn(ellipsis + text.mid(start));
            }
            ASSERT_TRUE(isWholeCharacters) << width;
            ASSERT_EQ(label.toolTip(), text);
        }
    }
}

TEST_F(ElidedTextLabelTest, anEmptyTextHasNoToolTip)
{
    label.setText("");
    label.resize(0, 0);
    label.grab();
    EXPECT_EQ(label.toolTip(), "");
}
