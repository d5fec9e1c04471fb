// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/util/TableCopyFixture.h"

#include "support/QtShims.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPointer>
#include <QPushButton>
#include <QStandardItemModel>
#include <QtTest>

#include <memory>

namespace {

using morvane::test::clipboardText;
using morvane::test::firstKeyOf;
using morvane::ui::CopyHandlerAbstract;
using morvane::ui::TableCopyHandler;

class CountingHandler : public CopyHandlerAbstract
{
public:
    using CopyHandlerAbstract::CopyHandlerAbstract;
    void copyToClipboard() override { ++copies; }
    int copies = 0;
};

/** Records the keys whose press or release reaches it. */
class KeyWidget : public QWidget
{
public:
    QList<int> pressed;
    QList<int> released;

protected:
    void keyPressEvent(QKeyEvent* event) override { pressed.append(event->key()); }
    void keyReleaseEvent(QKeyEvent* event) override { released.append(event->key()); }
};

QKeyEvent keyPress(const QKeySequence& sequence)
{
    const int combined = firstKeyOf(sequence);
    const auto modifiers = Qt::KeyboardModifiers(combined & static_cast<int>(Qt::KeyboardModifierMask));
    return QKeyEvent(QEvent::KeyPress, combined & ~static_cast<int>(Qt::KeyboardModifierMask), modifiers);
}

TEST(CopyShortcutTest, everyKeySequenceOfThePlatformCopiesAndGoesNoFurther)
{
    const QList<QKeySequence> sequences = QKeySequence::keyBindings(QKeySequence::Copy);
    ASSERT_GE(sequences.size(), 2);
    KeyWidget widget;
    CountingHandler handler(widget);
    int copies = 0;
    for (const QKeySequence& sequence : sequences) {
        QKeyEvent event = keyPress(sequence);
        QApplication::sendEvent(&widget, &event);
        EXPECT_EQ(handler.copies, ++copies) << sequence.toString().toStdString();
    }
    EXPECT_TRUE(widget.pressed.isEmpty());
}

TEST(CopyShortcutTest, otherKeysReachTheWidget)
{
    const char* const others[] = {"C", "Shift+C", "Alt+C", "Ctrl+Shift+C", "Ctrl+Alt+C", "Ctrl+X", "Ctrl+V", "Insert",
        "Shift+Insert", "Return", "Left"};
    for (const char* const other : others) {
        KeyWidget widget;
        CountingHandler handler(widget);
        QKeyEvent event = keyPress(QKeySequence(other));
        QApplication::sendEvent(&widget, &event);
        EXPECT_EQ(handler.copies, 0) << other;
        EXPECT_EQ(widget.pressed, QList<int>({event.key()})) << other;
    }
}

TEST(CopyShortcutTest, releasingTheKeysReachesTheWidget)
{
    KeyWidget widget;
    CountingHandler handler(widget);
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_C, Qt::ControlModifier);
    QApplication::sendEvent(&widget, &release);
    EXPECT_EQ(handler.copies, 0);
    EXPECT_EQ(widget.released, QList<int>({Qt::Key_C}));
}

TEST(CopyShortcutTest, theFilterTellsWhetherItCopiedWhateverObjectItIsAskedFor)
{
    KeyWidget widget;
    QObject stranger;
    CountingHandler handler(widget);
    QKeyEvent copy(QEvent::KeyPress, Qt::Key_C, Qt::ControlModifier);
    QKeyEvent override(QEvent::ShortcutOverride, Qt::Key_C, Qt::ControlModifier);
    QEvent timer(QEvent::Timer);
    EXPECT_TRUE(handler.eventFilter(&stranger, &copy));
    EXPECT_TRUE(handler.eventFilter(nullptr, &copy));
    EXPECT_FALSE(handler.eventFilter(&widget, &override));
    EXPECT_FALSE(handler.eventFilter(&widget, &timer));
    EXPECT_EQ(handler.copies, 2);
}

TEST(CopyShortcutTest, ofTwoHandlersTheLaterOneCopiesUntilItIsDeleted)
{
    KeyWidget widget;
    CountingHandler earlier(widget);
    auto later = std::make_unique<CountingHandler>(widget);
    QTest::keyClick(&widget, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(later->copies, 1);
    EXPECT_EQ(earlier.copies, 0);
    later.reset();
    QTest::keyClick(&widget, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(earlier.copies, 1);
}

TEST(CopyShortcutTest, aHandlerIsTheChildOfItsWidgetAndEndsWithIt)
{
    auto widget = std::make_unique<KeyWidget>();
    const QPointer<CountingHandler> handler = new CountingHandler(*widget);
    EXPECT_EQ(handler->parent(), widget.get());
    widget.reset();
    EXPECT_TRUE(handler.isNull());
}

TEST(CopyShortcutTest, theKeysBelongToTheWidgetAgainOnceTheHandlerIsDeleted)
{
    KeyWidget widget;
    delete new CountingHandler(widget);
    QTest::keyClick(&widget, Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(widget.pressed.contains(Qt::Key_C));
}

TEST(CopyShortcutTest, bothClassesShowOneSlotUnderTheirFullName)
{
    const std::pair<const QMetaObject*, QByteArray> classes[] = {
        {&CopyHandlerAbstract::staticMetaObject, "morvane::ui::CopyHandlerAbstract"},
        {&TableCopyHandler::staticMetaObject, "morvane::ui::TableCopyHandler"}};
    for (const auto& [meta, name] : classes) {
        EXPECT_EQ(meta->className(), name);
        ASSERT_EQ(meta->methodCount() - meta->methodOffset(), 1);
        const QMetaMethod method = meta->method(meta->methodOffset());
        EXPECT_EQ(method.methodSignature(), "copyToClipboard()");
        EXPECT_EQ(method.methodType(), QMetaMethod::Slot);
        EXPECT_EQ(method.access(), QMetaMethod::Public);
        EXPECT_EQ(meta->propertyCount(), meta->propertyOffset());
    }
}

using CopyShortcutTableTest = morvane::test::TableCopyFixture;

TEST_F(CopyShortcutTableTest, actionsAndButtonsCanCopyToo)
{
    QAction action;
    QPushButton button;
    QObject::connect(&action, &QAction::triggered, handler, &CopyHandlerAbstract::copyToClipboard);
    QObject::connect(&button, SIGNAL(clicked()), handler, SLOT(copyToClipboard()));
    click(1, 1);
    action.trigger();
    EXPECT_EQ(clipboardText(), "r1c1");
    click(2, 2);
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(clipboardText(), "r2c2");
}

TEST_F(CopyShortcutTableTest, onlyTheClipboardProperIsWritten)
{
    QClipboard* const clipboard = QGuiApplication::clipboard();
    if (clipboard->supportsSelection()) {
        clipboard->setText("kept", QClipboard::Selection);
    }
    click(1, 1);
    copied();
    EXPECT_EQ(clipboard->text(QClipboard::Selection), clipboard->supportsSelection() ? "kept" : "");
}

class CopyShortcutEditorTest : public morvane::test::TableCopyFixture
{
protected:
    CopyShortcutEditorTest() : items(2, 2)
    {
        items.setItem(0, 0, new QStandardItem("thermocouple"));
        show(items);
        click(0, 0);
        press(Qt::Key_F2);
        editor = view.viewport()->findChild<QLineEdit*>();
        QGuiApplication::clipboard()->setText("before");
    }
    ~CopyShortcutEditorTest() override { view.setModel(nullptr); }

    QStandardItemModel items;
    QLineEdit* editor;
};

TEST_F(CopyShortcutEditorTest, copiesTheEditorsOwnSelection)
{
    ASSERT_NE(editor, nullptr);
    QTest::keyClick(editor, Qt::Key_Home);
    QTest::keyClick(editor, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(editor, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(editor, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboardText(), "th");
}

TEST_F(CopyShortcutEditorTest, withNothingSelectedInTheEditorLeavesTheClipboardAlone)
{
    ASSERT_NE(editor, nullptr);
    QTest::keyClick(editor, Qt::Key_End);
    QTest::keyClick(editor, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboardText(), "before");
}

TEST_F(CopyShortcutEditorTest, theCellsAreCopiedAgainOnceItIsClosed)
{
    ASSERT_NE(editor, nullptr);
    QTest::keyClick(editor, Qt::Key_Escape);
    EXPECT_EQ(copied(), "thermocouple");
}

class CopyShortcutClipboardTest : public ::testing::Test
{
protected:
    CopyShortcutClipboardTest() : model(2, 2), view(std::make_unique<QTableView>())
    {
        view->setModel(&model);
        handler = new TableCopyHandler(*view);
        view->show();
        view->selectAll();
    }

    template <typename Action>
    void onClipboardChange(Action action)
    {
        QObject::connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, &listener, action);
    }

    /** Waits, because listeners are not always told at once: if the system owns the clipboard, it tells them later. */
    template <typename Condition>
    static bool becomes(Condition condition)
    {
        return QTest::qWaitFor(condition);
    }

    morvane::test::CellModel model;
    std::unique_ptr<QTableView> view;
    QPointer<TableCopyHandler> handler;
    QObject listener;
};

TEST_F(CopyShortcutClipboardTest, mayDeleteTheHandlerWhileTheShortcutIsBeingHandled)
{
    onClipboardChange([this] { delete handler.data(); });
    QTest::keyClick(view.get(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(becomes([this] { return handler.isNull(); }));
    EXPECT_EQ(clipboardText(), "r0c0\tr0c1\nr1c0\tr1c1");
}

TEST_F(CopyShortcutClipboardTest, mayDeleteTheHandlerDuringADirectCopy)
{
    onClipboardChange([this] { delete handler.data(); });
    handler->copyToClipboard();
    EXPECT_TRUE(becomes([this] { return handler.isNull(); }));
}

TEST_F(CopyShortcutClipboardTest, mayDeleteTheViewDuringADirectCopy)
{
    onClipboardChange([this] { view.reset(); });
    handler->copyToClipboard();
    EXPECT_TRUE(becomes([this] { return handler.isNull(); }));
}

TEST_F(CopyShortcutClipboardTest, mayReplaceTheModelAndCopyAgain)
{
    morvane::test::CellModel other(1, 1);
    bool again = false;
    onClipboardChange([&] {
        if (!again) {
            again = true;
            view->setModel(&other);
            view->selectAll();
            handler->copyToClipboard();
        }
    });
    handler->copyToClipboard();
    EXPECT_TRUE(becomes([] { return clipboardText() == "r0c0"; }));
    view->setModel(nullptr);
}

TEST_F(CopyShortcutClipboardTest, hearsOfEachCopyOnce)
{
    int changes = 0;
    onClipboardChange([&changes] { ++changes; });
    handler->copyToClipboard();
    EXPECT_TRUE(becomes([&changes] { return changes > 0; }));
    if (QGuiApplication::platformName() != QLatin1String("windows")) { // there may be signals of earlier copies, too
        EXPECT_EQ(changes, 1);
    }
}

} // namespace
