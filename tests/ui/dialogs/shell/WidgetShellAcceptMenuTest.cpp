// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The arrow on the accept button and its menu.
#include "WidgetShellRunTest.h"

#include <QMenu>
#include <QPushButton>
#include <QStyle>
#include <QStyleFactory>
#include <QTimer>
#include <QToolButton>

#include <cstdlib>
#include <memory>
#include <set>

namespace morvane::test {

namespace {

using namespace morvane::ui;

class WidgetShellAcceptMenu : public WidgetShellRun
{
protected:
    void SetUp() override
    {
        WidgetShellRun::SetUp();
        ASSERT_EQ(customize->EnableOpenDropDown(0), S_OK);
        ASSERT_EQ(customize->AddControlItem(0, 1, text("Open as copy").c_str()), S_OK);
        ASSERT_EQ(customize->AddControlItem(0, 2, text("Open read-only").c_str()), S_OK);
        dialog->SetFileName(text("a.txt").c_str());
    }
    static QAbstractButton& button(QFileDialog& window) { return FileDialogDriver::whenActive(window).acceptButton(); }
    static QToolButton& arrow(QFileDialog& window) { return *button(window).findChild<QToolButton*>(); }
    static void expectNoButtonBelow(const QMenu& menu, QFileDialog& window)
    {
        const auto place = [](const QWidget& widget) { return QRect(widget.mapToGlobal(QPoint(0, 0)), widget.size()); };
        for (const QAbstractButton* const other : window.findChildren<QAbstractButton*>()) {
            EXPECT_FALSE(other->isVisible() && place(*other).intersects(menu.geometry()))
                << other->text().toStdString();
        }
        const QRect accept = place(FileDialogDriver::whenActive(window).acceptButton());
        EXPECT_LE(std::abs(menu.geometry().bottom() - accept.top()), 2) << "it hangs together with the button";
    }
    /** Opens the menu with the space bar and presses keys in it. */
    static void pressInMenu(QFileDialog& window, const std::vector<Qt::Key>& keys)
    {
        QPointer<QToolButton> opener(&arrow(window));
        opener->setFocus();
        QTimer::singleShot(0, opener, [opener, keys] {
            for (const Qt::Key key : keys) {
                ASSERT_TRUE(opener && opener->menu()->isVisible());
                QTest::keyClick(opener->menu(), key);
            }
        });
        QTest::keyPress(opener, Qt::Key_Space); // the menu is open until this returns
        if (opener) {
            QTest::keyRelease(opener, Qt::Key_Space);
        }
    }
};

TEST_F(WidgetShellAcceptMenu, isCalledByItsPurpose)
{
    show([](QFileDialog& window) {
        EXPECT_EQ(arrow(window).accessibleName(), QStringLiteral("More ways to accept"));
        window.reject();
    });
}

TEST_F(WidgetShellAcceptMenu, givesTheButtonTheTextOfItsFirstItemThatCanBeChosen)
{
    const auto textOf = [](QFileDialog& window) { return button(window).text(); };
    show([&](QFileDialog& window) {
        EXPECT_EQ(textOf(window), QStringLiteral("Open as copy"));
        FileDialogDriver::whenActive(window).typeName(
            QStringLiteral("zzz.txt")); // Qt sets the text of the button again; there are no suggestions
        FileDialogDriver::whenActive(window).clickFile(QStringLiteral("inner"));
        EXPECT_EQ(textOf(window), QStringLiteral("Open as copy"));
        EXPECT_EQ(customize->SetControlItemState(0, 1, CDCS_VISIBLE), S_OK);
        EXPECT_EQ(textOf(window), QStringLiteral("Open read-only"));
        EXPECT_EQ(customize->SetControlItemText(0, 2, text("Look at it").c_str()), S_OK);
        EXPECT_EQ(textOf(window), QStringLiteral("Look at it"));
        EXPECT_EQ(customize->RemoveAllControlItems(0), S_OK);
        EXPECT_EQ(textOf(window), QStringLiteral("&Open")) << "its own again";
        EXPECT_EQ(customize->AddControlItem(0, 9, text("Ninth").c_str()), S_OK);
        EXPECT_EQ(dialog->SetOkButtonLabel(text("Take").c_str()), S_OK);
        EXPECT_EQ(textOf(window), QStringLiteral("Ninth"));
        EXPECT_EQ(customize->SetControlState(0, CDCS_ENABLED), S_OK);
        EXPECT_EQ(textOf(window), QStringLiteral("Take")) << "the host's own while there is no menu";
        window.reject();
    });
}

TEST_F(WidgetShellAcceptMenu, leavesTheButtonToQtWhileItHasNoItem)
{
    make(CLSID_FileSaveDialog);
    ASSERT_EQ(customize->EnableOpenDropDown(0), S_OK);
    show([&](QFileDialog& window) {
        EXPECT_EQ(button(window).text(), QStringLiteral("&Save"));
        window.reject();
    });
}

TEST_F(WidgetShellAcceptMenu, isForgottenWhenItsChoiceIsRefused)
{
    DWORD item = 0;
    sink.on["OnFileOk"] = [&] {
        EXPECT_EQ(customize->GetSelectedControlItem(0, &item), S_OK);
        return sink.count("OnFileOk") == 1 ? S_FALSE : S_OK;
    };
    EXPECT_EQ(show([&](QFileDialog& window) {
        pressInMenu(window, {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return});
        EXPECT_EQ(item, 2u) << "while it is decided";
        ASSERT_TRUE(window.isVisible());
        FileDialogDriver::whenActive(window).pressAccept();
    }),
        S_OK);
    EXPECT_EQ(item, 1u) << "what the button says";
    EXPECT_EQ(customize->GetSelectedControlItem(0, &item), S_OK);
    EXPECT_EQ(item, 1u);
}

TEST_F(WidgetShellAcceptMenu, opensWhereItCoversNoButton)
{
    ASSERT_EQ(customize->AddPushButton(5, text("Help me").c_str()), S_OK);
    ASSERT_EQ(customize->MakeProminent(5), S_OK);
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        show([direction](QFileDialog& window) {
            window.setLayoutDirection(direction);
            QMenu& menu = *arrow(window).menu();
            QTimer poll;
            QObject::connect(&poll, &QTimer::timeout, &menu, [&] {
                if (menu.isVisible()) {
                    expectNoButtonBelow(menu, window);
                    menu.close();
                }
            });
            poll.start(1);
            arrow(window).showMenu();
            window.reject();
        });
    }
}

TEST_F(WidgetShellAcceptMenu, staysAtTheEndOfTheButtonWhateverItsSizeAndDirection)
{
    show([](QFileDialog& window) {
        const auto expected = [&window](int edge) {
            return edge == 0 ? QRect(0, 0, arrow(window).width(), button(window).height())
                             : QRect(button(window).width() - arrow(window).width(), 0, arrow(window).width(),
                                   button(window).height());
        };
        for (const auto direction : {Qt::RightToLeft, Qt::LeftToRight}) {
            const int edge = direction == Qt::RightToLeft ? 0 : 1;
            window.setLayoutDirection(direction);
            EXPECT_EQ(arrow(window).geometry(), expected(edge)) << "turned to " << direction;
            button(window).resize(button(window).size() + QSize(40, 10));
            EXPECT_EQ(arrow(window).geometry(), expected(edge)) << "resized in " << direction;
        }
        window.reject();
    });
}

TEST_F(WidgetShellAcceptMenu, isAddedToAButtonThatKeepsItsSize)
{
    make(CLSID_FileOpenDialog);
    ASSERT_EQ(customize->AddPushButton(5, text("A button that makes all the others as wide").c_str()), S_OK);
    ASSERT_EQ(customize->MakeProminent(5), S_OK);
    show([this](QFileDialog& window) {
        const QSize before = button(window).size();
        EXPECT_EQ(customize->EnableOpenDropDown(0), S_OK);
        EXPECT_EQ(customize->AddControlItem(0, 1, text("Open as copy").c_str()), S_OK);
        EXPECT_EQ(button(window).size(), before);
        EXPECT_EQ(arrow(window).geometry().topRight(), button(window).rect().topRight());
        EXPECT_EQ(arrow(window).height(), before.height());
        window.reject();
    });
}

TEST_F(WidgetShellAcceptMenu, hasRoomBesideTheTextOfTheButton)
{
    show([this](QFileDialog& window) {
        const auto room = [&window] { return button(window).minimumWidth() - button(window).sizeHint().width(); };
        EXPECT_EQ(room(), 2 * arrow(window).width()) << "on both sides, so that the text stays in the middle";
        EXPECT_EQ(dialog->SetOkButtonLabel(text("Open in a new window").c_str()), S_OK);
        EXPECT_EQ(room(), 2 * arrow(window).width()) << "with another text";
        EXPECT_EQ(customize->SetControlState(0, CDCS_ENABLED), S_OK);
        EXPECT_EQ(button(window).minimumWidth(), 0) << "gone with the arrow";
        window.reject();
    });
}

TEST_F(WidgetShellAcceptMenu, isReachedByTabFromTheButton)
{
    ASSERT_EQ(customize->AddPushButton(5, text("Button").c_str()), S_OK);
    show([this](QFileDialog& window) {
        for (const bool prominent : {false, true}) {
            EXPECT_EQ(prominent ? customize->MakeProminent(5) : S_OK, S_OK);
            button(window).setFocus();
            QTest::keyClick(&button(window), Qt::Key_Tab);
            EXPECT_EQ(window.focusWidget(), &arrow(window)) << prominent;
        }
        window.reject();
    });
}

TEST_F(WidgetShellAcceptMenu, isWorkedWithTheKeyboard)
{
    EXPECT_EQ(show([](QFileDialog& window) {
        pressInMenu(window, {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return});
    }),
        S_OK);
    EXPECT_THAT(sink.log, ::testing::Contains("OnControlActivating 0"));
    EXPECT_EQ(sink.count("OnItemSelected 0 2"), 1);
    EXPECT_EQ(sink.count("OnFileOk"), 1);
}

TEST_F(WidgetShellAcceptMenu, isLeftWithEscapeWhileTheDialogStays)
{
    EXPECT_EQ(show([this](QFileDialog& window) {
        pressInMenu(window, {Qt::Key_Escape});
        EXPECT_TRUE(window.isVisible());
        EXPECT_FALSE(QApplication::activePopupWidget());
        EXPECT_EQ(sink.count("OnItemSelected 0 1"), 0);
        FileDialogDriver::whenActive(window).pressAccept();
    }),
        S_OK);
}

TEST_F(WidgetShellAcceptMenu, showsEachItemInItsState)
{
    show([this](QFileDialog& window) {
        for (const int state : {CDCS_INACTIVE, CDCS_ENABLED, CDCS_VISIBLE, CDCS_ENABLEDVISIBLE}) {
            EXPECT_EQ(customize->SetControlItemState(0, 2, static_cast<CDCONTROLSTATEF>(state)), S_OK);
            const QList<QAction*> actions = arrow(window).menu()->actions();
            ASSERT_EQ(actions.size(), 2);
            EXPECT_EQ(actions.at(1)->text(), QStringLiteral("Open read-only"));
            EXPECT_EQ(actions.at(1)->isVisible(), (state & CDCS_VISIBLE) != 0) << state;
            // For Qt, an invisible action is also disabled.
            EXPECT_EQ(actions.at(1)->isEnabled(), state == CDCS_ENABLEDVISIBLE) << state;
        }
        const auto kept = [&window] {
            return arrow(window).menu()->findChildren<QAction*>(QString(), Qt::FindDirectChildrenOnly).size();
        };
        EXPECT_TRUE(QTest::qWaitFor([&kept] { return kept() == 2 + 1; })) << "besides the one of the menu: " << kept();
        window.reject();
    });
}

/** The colours of an arrow on the screen: in a row above the arrow itself, in its middle, and at both its ends. */
struct Look
{
    explicit Look(QToolButton& arrow)
    {
        const QImage image = arrow.grab().toImage();
        for (int x = 0; x < image.width(); ++x) {
            above.push_back(image.pixel(x, 6));
            middle.push_back(image.pixel(x, image.height() / 2));
            ends.insert(image.pixel(x, 0));
            ends.insert(image.pixel(x, image.height() - 1));
        }
    }
    QRgb ground() const { return above.at(above.size() / 2); }
    QRgb arrow() const { return middle.at(middle.size() / 2); }

    std::vector<QRgb> above;
    std::vector<QRgb> middle;
    std::set<QRgb> ends;
};

class WidgetShellAcceptMenuLook : public WidgetShellAcceptMenu
{
protected:
    static QPalette palette(QFileDialog& window)
    {
        QPalette palette = window.palette();
        palette.setColor(QPalette::Active, QPalette::Mid, Qt::red);
        palette.setColor(QPalette::Disabled, QPalette::Mid, Qt::blue);
        return palette;
    }
};

TEST_F(WidgetShellAcceptMenuLook, hasALineTowardsTheText)
{
    show([this](QFileDialog& window) {
        const QRgb enabled = QColor(Qt::red).rgb();
        const QRgb disabled = QColor(Qt::blue).rgb();
        window.setPalette(palette(window));
        window.setLayoutDirection(Qt::LeftToRight);
        const Look ordinary(arrow(window));
        EXPECT_EQ(ordinary.above.front(), enabled);
        EXPECT_NE(ordinary.above.back(), enabled);
        EXPECT_EQ(ordinary.ends.count(enabled), 0u) << "the line is shorter than the button is high";
        window.setLayoutDirection(Qt::RightToLeft);
        const Look turned(arrow(window));
        EXPECT_EQ(turned.above.back(), enabled);
        EXPECT_NE(turned.above.front(), enabled);
        EXPECT_EQ(customize->SetControlState(0, CDCS_VISIBLE), S_OK);
        EXPECT_EQ(Look(arrow(window)).above.back(), disabled);
        window.reject();
    });
}

TEST_F(WidgetShellAcceptMenuLook, hasAnArrowInTheColourOfText)
{
    const std::unique_ptr<QStyle> style(QStyleFactory::create(QStringLiteral("fusion"))); // not every style uses it
    show([&style](QFileDialog& window) {
        arrow(window).setStyle(style.get());
        const Look ordinary(arrow(window));
        EXPECT_NE(ordinary.arrow(), ordinary.ground());
        QPalette palette = window.palette();
        palette.setColor(QPalette::WindowText, Qt::red);
        palette.setColor(QPalette::ButtonText, Qt::red);
        window.setPalette(palette);
        EXPECT_NE(Look(arrow(window)).arrow(), ordinary.arrow());
        window.reject();
    });
}

TEST_F(WidgetShellAcceptMenuLook, isWashedWithColourUnderTheMouseAndWithTheFocusAndMoreSoWhileItIsDown)
{
    show([](QFileDialog& window) {
        QToolButton& opener = arrow(window);
        button(window).setFocus();
        opener.setAttribute(Qt::WA_UnderMouse, false);
        const QRgb plain = Look(opener).ground();
        opener.setDown(true);
        const QRgb down = Look(opener).ground();
        opener.setDown(false);
        opener.setAttribute(Qt::WA_UnderMouse, true);
        const QRgb hovered = Look(opener).ground();
        opener.setAttribute(Qt::WA_UnderMouse, false);
        opener.setFocus();
        EXPECT_EQ(Look(opener).ground(), hovered);
        EXPECT_NE(hovered, plain);
        EXPECT_NE(down, plain);
        EXPECT_NE(down, hovered);
        window.reject();
    });
}

} // namespace

} // namespace morvane::test
