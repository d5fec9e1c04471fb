// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/ElidedTextUtil.h"

#include <gtest/gtest.h>

#include <QEvent>
#include <QWidget>

namespace {

class ToolTipWatch : public QWidget
{
public:
    int changes = 0;

protected:
    bool event(QEvent* event) override
    {
        changes += event->type() == QEvent::ToolTipChange;
        return QWidget::event(event);
    }
};

class ElidedTextUtilTest : public ::testing::Test
{
protected:
    int width() const { return widget.fontMetrics().horizontalAdvance(text); }
    void update(int room) { util.updateToolTip(&widget, room, text, "tip"); }

    ToolTipWatch widget;
    ElidedTextUtil util;
    const QString text = "measurements/pressure.dat";
};

} // namespace

TEST_F(ElidedTextUtilTest, hasTheToolTipWhileTheTextIsWider)
{
    update(width() - 1);
    EXPECT_EQ(widget.toolTip(), "tip");
    update(width());
    EXPECT_EQ(widget.toolTip(), "");
    update(-5);
    EXPECT_EQ(widget.toolTip(), "tip");
}

TEST_F(ElidedTextUtilTest, leavesTheToolTipOfSomebodyElse)
{
    widget.setToolTip("mine");
    update(0);
    EXPECT_EQ(widget.toolTip(), "mine");
    update(width());
    EXPECT_EQ(widget.toolTip(), "mine");
}

TEST_F(ElidedTextUtilTest, takesAToolTipOfTheSameTextForItsOwn)
{
    widget.setToolTip("tip");
    update(width());
    EXPECT_EQ(widget.toolTip(), "");
}

TEST_F(ElidedTextUtilTest, tellsTheWidgetOfChangesOnly)
{
    update(width());
    EXPECT_EQ(widget.changes, 0);
    update(0);
    update(0);
    EXPECT_EQ(widget.changes, 1);
    update(width());
    update(width());
    EXPECT_EQ(widget.changes, 2);
}

TEST_F(ElidedTextUtilTest, measuresWithTheFontOfTheWidget)
{
    const int room = width();
    QFont font = widget.font();
    font.setPointSize(font.pointSize() * 2);
    widget.setFont(font);
    update(room);
    EXPECT_EQ(widget.toolTip(), "tip");
}

TEST_F(ElidedTextUtilTest, anEmptyTextFitsInNoRoom)
{
    util.updateToolTip(&widget, 0, "", "tip");
    EXPECT_EQ(widget.toolTip(), "");
}

TEST_F(ElidedTextUtilTest, canBeReplaced)
{
    struct Silent : ElidedTextUtil
    {
        void updateToolTip(QWidget*, int, const QString&, const QString&) override {}
    };
    Silent silent;
    static_cast<ElidedTextUtil&>(silent).updateToolTip(&widget, 0, text, "tip");
    EXPECT_EQ(widget.toolTip(), "");
}
