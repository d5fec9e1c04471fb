// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "support/QtPrinters.h"
#include "ui/qt/controls/ElidedTextLabel.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMetaProperty>
#include <QTest>
#include <QVBoxLayout>

namespace {

const QString longPath("measurements/2024/run-17/pressure.dat");

/** A label between two fields in a window that is too narrow for it. */
class ElidedTextCopyTest : public ::testing::Test
{
protected:
    ElidedTextCopyTest()
    {
        auto* const layout = new QVBoxLayout(&window);
        layout->addWidget(&before);
        layout->addWidget(&label);
        layout->addWidget(&after);
        label.setText(longPath);
        window.resize(120, 100);
        window.show();
        window.activateWindow();
        before.setFocus();
        QApplication::clipboard()->setText("(untouched)");
    }

    ~ElidedTextCopyTest() override
    {
        if (QWidget* const menu = QApplication::activePopupWidget()) {
            menu->close();
        }
        for (QWidget* const widget : {static_cast<QWidget*>(&before), static_cast<QWidget*>(&label)}) {
            widget->setParent(nullptr);
        }
        after.setParent(nullptr);
    }

    void SetUp() override { ASSERT_TRUE(QTest::qWaitForWindowActive(&window)); }

    static QString clipboard() { return QApplication::clipboard()->text(); }

    QMenu* openMenu()
    {
        const QPoint place = label.rect().center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, label.mapToGlobal(place));
        QApplication::sendEvent(&label, &event);
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }

    QWidget window;
    QLineEdit before;
    ElidedTextLabel label;
    QLineEdit after;
};

TEST_F(ElidedTextCopyTest, initiallyTheLabelIsNeitherFocusedNorCopied)
{
    EXPECT_FALSE(label.isCopyable());
    EXPECT_EQ(label.focusPolicy(), Qt::NoFocus);
    EXPECT_EQ(openMenu(), nullptr);
    QTest::keyClick(&before, Qt::Key_Tab);
    EXPECT_TRUE(after.hasFocus());
    QTest::keyClick(&label, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), "(untouched)");
}

TEST_F(ElidedTextCopyTest, tabAndTheCopyShortcutCopyTheWholeText)
{
    label.setCopyable(true);
    QTest::keyClick(&before, Qt::Key_Tab);
    ASSERT_TRUE(label.hasFocus());
    QTest::keyClick(&label, Qt::Key_C);
    EXPECT_EQ(clipboard(), "(untouched)");
    QTest::keyClick(&label, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), longPath);
    label.setText("other");
    QTest::keyClick(&label, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), "other");
    QTest::keyClick(&label, Qt::Key_Tab);
    EXPECT_TRUE(after.hasFocus());
}

TEST_F(ElidedTextCopyTest, aClickGivesItTheFocus)
{
    label.setCopyable(true);
    QTest::mouseClick(&label, Qt::LeftButton);
    EXPECT_TRUE(label.hasFocus());
    QTest::mouseClick(&after, Qt::LeftButton);
    EXPECT_TRUE(after.hasFocus());
}

TEST_F(ElidedTextCopyTest, theFocusThatCameByTheKeyboardIsShown)
{
    label.setCopyable(true);
    const QImage unfocused = label.grab().toImage();
    QTest::keyClick(&before, Qt::Key_Tab);
    EXPECT_TRUE(label.grab().toImage() != unfocused);
    QTest::keyClick(&label, Qt::Key_Tab);
    EXPECT_TRUE(label.grab().toImage() == unfocused);
}

TEST_F(ElidedTextCopyTest, anActionOfTheWindowDoesNotTakeTheShortcut)
{
    label.setCopyable(true);
    QAction action;
    action.setShortcut(QKeySequence::Copy);
    window.addAction(&action);
    int triggered = 0;
    QObject::connect(&action, &QAction::triggered, &action, [&triggered] { ++triggered; });
    label.setFocus();
    QTest::keyClick(window.windowHandle(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), longPath);
    EXPECT_EQ(triggered, 0);
}

TEST_F(ElidedTextCopyTest, theContextMenuCopiesTheWholeText)
{
    label.setCopyable(true);
    QMenu* const menu = openMenu();
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->actions().size(), 1);
    QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(menu->actions().first()).center());
    EXPECT_EQ(clipboard(), longPath);
}

TEST_F(ElidedTextCopyTest, withoutTextNothingIsCopied)
{
    label.setCopyable(true);
    label.setText("");
    QMenu* const menu = openMenu();
    ASSERT_NE(menu, nullptr);
    EXPECT_FALSE(menu->actions().first()->isEnabled());
    menu->close();
    QTest::keyClick(&label, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), "(untouched)");
}

TEST_F(ElidedTextCopyTest, switchedOffItIsALabelAgain)
{
    label.setCopyable(true);
    label.setCopyable(true);
    label.setFocus();
    label.setCopyable(false);
    EXPECT_FALSE(label.isCopyable());
    EXPECT_EQ(label.focusPolicy(), Qt::NoFocus);
    EXPECT_FALSE(label.hasFocus());
    EXPECT_EQ(openMenu(), nullptr);
    QTest::keyClick(&label, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), "(untouched)");
}

TEST_F(ElidedTextCopyTest, policiesOfTheHostStay)
{
    label.setFocusPolicy(Qt::ClickFocus);
    label.setContextMenuPolicy(Qt::NoContextMenu);
    label.setCopyable(true);
    EXPECT_EQ(label.focusPolicy(), Qt::ClickFocus);
    EXPECT_EQ(openMenu(), nullptr);
    label.setCopyable(false);
    EXPECT_EQ(label.focusPolicy(), Qt::ClickFocus);
    label.setFocusPolicy(Qt::NoFocus);
    label.setCopyable(true);
    label.setFocusPolicy(Qt::TabFocus);
    label.setCopyable(false);
    EXPECT_EQ(label.focusPolicy(), Qt::TabFocus) << "set while the label was copyable";
}

TEST_F(ElidedTextCopyTest, bothPropertiesAreForDesigner)
{
    for (const char* const name : {"copyable", "elideMode"}) {
        const QMetaProperty property = label.metaObject()->property(label.metaObject()->indexOfProperty(name));
        EXPECT_TRUE(property.isWritable() && property.isDesignable() && property.isStored()) << name;
    }
    EXPECT_EQ(label.property("elideMode").toInt(), Qt::ElideLeft);
    EXPECT_TRUE(label.setProperty("elideMode", Qt::ElideMiddle));
    EXPECT_EQ(label.elideMode(), Qt::ElideMiddle);
    EXPECT_TRUE(label.setProperty("copyable", true));
    EXPECT_TRUE(label.isCopyable());
}

TEST_F(ElidedTextCopyTest, withEachElideModeTheToolTipHasTheTextThatDoesNotFit)
{
    for (const Qt::TextElideMode mode : {Qt::ElideLeft, Qt::ElideMiddle, Qt::ElideRight, Qt::ElideNone}) {
        label.setElideMode(mode);
        label.setMinimumSize(0, 0);
        label.resize(label.sizeHint().width() / 2, label.sizeHint().height());
        label.grab();
        EXPECT_EQ(label.toolTip(), longPath) << mode;
    }
}

TEST_F(ElidedTextCopyTest, withTheLabelStandInMarkupAndMnemonicsArePlainText)
{
    for (const char* const text : {"<b>R</b>", "<a href=\"x\">link</a>", "R&D", "&File", "a&&b"}) {
        label.setText(text);
        EXPECT_EQ(label.sizeHint().width(), label.fontMetrics().horizontalAdvance(text)) << text;
    }
    // A mnemonic would be underlined instead of the ampersand, and the picture would be that of the text without it.
    label.setText("&File");
    label.resize(label.sizeHint());
    const QImage marked = label.grab().toImage();
    label.setText("File");
    EXPECT_TRUE(label.grab().toImage() != marked);
    QTest::keyClick(&window, Qt::Key_F, Qt::AltModifier);
    EXPECT_TRUE(before.hasFocus());
}

} // namespace
