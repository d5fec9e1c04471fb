// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ComboBoxForm.h"

#include <ostream>

using morvane::test::pressKey;
using morvane::test::type;

namespace {

/** How the host deletes the combo box as soon as there is an outcome. */
enum class Disposal
{
    Delete,
    DeleteLater
};

void PrintTo(Disposal disposal, std::ostream* out)
{
    *out << (disposal == Disposal::Delete ? "delete" : "deleteLater()");
}

class ComboBoxDeletion : public morvane::test::ComboBoxForm, public ::testing::WithParamInterface<Disposal>
{
protected:
    void SetUp() override
    {
        setUp({"Dog", "Bar", "Car"});
        const auto dispose = [this] {
            ++announced;
            if (GetParam() == Disposal::Delete) {
                delete box;
            } else {
                box->deleteLater();
            }
        };
        QObject::connect(box, &morvane::ui::ComboBoxAutoFilter::selectionComplete, dispose);
        QObject::connect(box, &morvane::ui::ComboBoxAutoFilter::editingCanceled, dispose);
    }

    void TearDown() override
    {
        EXPECT_EQ(announced, 1);
        EXPECT_TRUE(QTest::qWaitFor([this] { return !box; }));
    }

    void openCompleter()
    {
        box->lineEdit()->clear();
        type("ar");
        ASSERT_TRUE(QTest::qWaitFor([this] { return completerPopup()->isVisible(); }));
    }

    int announced = 0;
};

} // namespace

TEST_P(ComboBoxDeletion, onReturnInTheLine)
{
    pressKey(Qt::Key_Return);
}

TEST_P(ComboBoxDeletion, onTabInTheLine)
{
    pressKey(Qt::Key_Tab);
}

TEST_P(ComboBoxDeletion, onEscapeInTheLine)
{
    pressKey(Qt::Key_Escape);
}

TEST_P(ComboBoxDeletion, onAKeyThatTheLineItselfGets)
{
    QTest::keyPress(box->lineEdit(), Qt::Key_Return);
}

TEST_P(ComboBoxDeletion, onReturnInTheCompleter)
{
    openCompleter();
    pressKey(Qt::Key_Return);
}

TEST_P(ComboBoxDeletion, onTabInTheCompleter)
{
    openCompleter();
    pressKey(Qt::Key_Tab);
}

TEST_P(ComboBoxDeletion, onEscapeInTheCompleter)
{
    openCompleter();
    pressKey(Qt::Key_Escape);
}

TEST_P(ComboBoxDeletion, onAClickedSuggestion)
{
    openCompleter();
    const QModelIndex car = box->completer()->completionModel()->index(1, 0);
    QTest::mouseClick(completerPopup()->viewport(), Qt::LeftButton, {}, completerPopup()->visualRect(car).center());
}

TEST_P(ComboBoxDeletion, onReturnInTheList)
{
    openList();
    pressKey(Qt::Key_Return);
}

TEST_P(ComboBoxDeletion, onEscapeInTheList)
{
    openList();
    pressKey(Qt::Key_Escape);
}

TEST_P(ComboBoxDeletion, onAPickWithTheMouse)
{
    openList();
    const QPointer<QWidget> viewport = box->view()->viewport();
    const QPoint place = box->view()->visualRect(box->model()->index(1, 0)).center();
    QTest::mousePress(viewport, Qt::LeftButton, {}, place);
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, place);
}

TEST_P(ComboBoxDeletion, onAPickWithTheMouseThroughTheWindow)
{
    openList();
    QWidget* const viewport = box->view()->viewport();
    const QPointer<QWindow> popup = viewport->window()->windowHandle();
    const QPoint place =
        viewport->mapTo(viewport->window(), box->view()->visualRect(box->model()->index(1, 0)).center());
    QTest::mousePress(popup, Qt::LeftButton, {}, place);
    QTest::mouseRelease(popup, Qt::LeftButton, {}, place);
}

TEST_P(ComboBoxDeletion, onKeysThatTheListItselfGets)
{
    openList();
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(box->view(), &press);
}

INSTANTIATE_TEST_SUITE_P(, ComboBoxDeletion, ::testing::Values(Disposal::Delete, Disposal::DeleteLater),
    [](const auto& disposal) { return disposal.param == Disposal::Delete ? "atOnce" : "later"; });

namespace {

class ComboBoxDeletionEnd : public morvane::test::ComboBoxForm
{
};

} // namespace

TEST_F(ComboBoxDeletionEnd, comesWhileTheListIsOpen)
{
    setUp({"Dog", "Bar", "Car"});
    openList();
    const QPointer<QWidget> list = box->view();
    delete box;
    EXPECT_FALSE(list);
    EXPECT_EQ(complete.count() + cancel.count(), 0);
}

TEST_F(ComboBoxDeletionEnd, comesWhileTheCompleterIsOpen)
{
    setUp({"Dog", "Bar", "Car"});
    box->lineEdit()->clear();
    type("ar");
    const QPointer<QWidget> popup = completerPopup();
    ASSERT_TRUE(popup->isVisible());
    delete box;
    EXPECT_FALSE(popup);
    EXPECT_EQ(complete.count() + cancel.count(), 0);
}

TEST_F(ComboBoxDeletionEnd, comesBeforeItWasSetUp)
{
    delete box;
    EXPECT_EQ(complete.count() + cancel.count(), 0);
}
