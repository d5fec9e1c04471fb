// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ExtendedWinFileDialogTest.h"

#include "property/Property.h"

#include <boost/make_shared.hpp>

#include <QApplication>
#include <QPointer>
#include <QWindow>

namespace morvane::test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int enabled = 1;
constexpr int visible = 2;

int windowsOnScreen()
{
    int count = 0;
    for (const QWidget* const widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && !widget->testAttribute(Qt::WA_DontShowOnScreen)) {
            ++count;
        }
    }
    for (const QWindow* const window : QGuiApplication::topLevelWindows()) {
        if (window->isVisible()) {
            ++count;
        }
    }
    return count;
}

/** A button (1), a check box (2) and an option (3) of the menu (0). */
class ExtendedWinFileDialogStandIn : public ExtendedWinFileDialogTest
{
protected:
    void SetUp() override
    {
        m_shell.script.announcesOpening = false;
        dialog = menuDialog();
        button = dialog->addCustomButton("Button", [] {});
        check = dialog->addCustomCheckBox("Check", boost::make_shared<Property<bool>>(false));
        option = dialog->addAcceptButtonOption("Option", 5);
    }
    void TearDown() override
    {
        dialog.reset();
        EXPECT_EQ(windowsOnScreen(), 0);
        ExtendedWinFileDialogTest::TearDown();
    }
    /** States of button, check box and option. */
    std::vector<int> states()
    {
        RecordingControls& controls = shown().controls();
        return {controls.state(1), controls.state(2), controls.itemState(0, 3)};
    }
    std::vector<QWidget*> all() const { return {button, check, option}; }

    Dialog dialog;
    QWidget* button = nullptr;
    QWidget* check = nullptr;
    QWidget* option = nullptr;
};

TEST_F(ExtendedWinFileDialogStandIn, isAParentlessWidgetInItsFirstState)
{
    for (const QWidget* const widget : all()) {
        EXPECT_EQ(widget->parent(), nullptr);
        EXPECT_TRUE(widget->isEnabled());
        EXPECT_FALSE(widget->isHidden());
    }
    EXPECT_THAT(states(), ElementsAre(enabled | visible, enabled | visible, enabled | visible));
}

TEST_F(ExtendedWinFileDialogStandIn, hidingReadsAndWritesTheState)
{
    EXPECT_THAT(
        callsOf([&] { button->hide(); }), ElementsAre(customizeQuery, "IFileDialogCustomize::GetControlState(1)",
                                              "IFileDialogCustomize::SetControlState(1, 1)"));
    EXPECT_THAT(callsOf([&] { check->setVisible(false); }),
        ElementsAre(
            customizeQuery, "IFileDialogCustomize::GetControlState(2)", "IFileDialogCustomize::SetControlState(2, 1)"));
    EXPECT_THAT(
        callsOf([&] { option->hide(); }), ElementsAre(customizeQuery, "IFileDialogCustomize::GetControlItemState(0, 3)",
                                              "IFileDialogCustomize::SetControlItemState(0, 3, 1)"));
}

TEST_F(ExtendedWinFileDialogStandIn, showingReadsAndWritesTheState)
{
    for (QWidget* const widget : all()) {
        widget->hide();
    }
    EXPECT_THAT(
        callsOf([&] { button->show(); }), ElementsAre(customizeQuery, "IFileDialogCustomize::GetControlState(1)",
                                              "IFileDialogCustomize::SetControlState(1, 3)"));
    EXPECT_THAT(callsOf([&] { option->setVisible(true); }),
        ElementsAre(customizeQuery, "IFileDialogCustomize::GetControlItemState(0, 3)",
            "IFileDialogCustomize::SetControlItemState(0, 3, 3)"));
}

TEST_F(ExtendedWinFileDialogStandIn, enablingReadsAndWritesTheState)
{
    EXPECT_THAT(callsOf([&] { check->setEnabled(false); }),
        ElementsAre(
            customizeQuery, "IFileDialogCustomize::GetControlState(2)", "IFileDialogCustomize::SetControlState(2, 2)"));
    EXPECT_THAT(callsOf([&] { check->setDisabled(false); }),
        ElementsAre(
            customizeQuery, "IFileDialogCustomize::GetControlState(2)", "IFileDialogCustomize::SetControlState(2, 3)"));
    EXPECT_THAT(callsOf([&] { option->setDisabled(true); }),
        ElementsAre(customizeQuery, "IFileDialogCustomize::GetControlItemState(0, 3)",
            "IFileDialogCustomize::SetControlItemState(0, 3, 2)"));
}

TEST_F(ExtendedWinFileDialogStandIn, goesByItsOwnStateWhereTheShellDoesNotTellIt)
{
    m_shell.failCalls("IFileDialogCustomize::GetControlState");
    m_shell.failCalls("IFileDialogCustomize::GetControlItemState");
    for (QWidget* const widget : all()) {
        widget->setEnabled(false);
    }
    EXPECT_THAT(states(), ElementsAre(visible, visible, visible));
    for (QWidget* const widget : all()) {
        widget->hide();
    }
    EXPECT_THAT(states(), ElementsAre(0, 0, 0));
    for (QWidget* const widget : all()) {
        widget->setEnabled(true);
    }
    EXPECT_THAT(states(), ElementsAre(enabled, enabled, enabled));
}

TEST_F(ExtendedWinFileDialogStandIn, keepsTheBitsThatTheShellHasSetItself)
{
    ui::ComPtr<IFileDialogCustomize> customize;
    ASSERT_EQ(shown().give(IID_IFileDialogCustomize, customize.putVoid()), S_OK);
    ASSERT_EQ(customize->SetControlState(1, static_cast<CDCONTROLSTATEF>(0x10)), S_OK);
    button->setEnabled(false);
    EXPECT_EQ(shown().controls().state(1), 0x10);
    button->setEnabled(true);
    EXPECT_EQ(shown().controls().state(1), 0x10 | enabled);
}

TEST_F(ExtendedWinFileDialogStandIn, asksNothingForWhatDoesNotChange)
{
    EXPECT_THAT(callsOf([&] {
        button->show();
        button->setEnabled(true);
        button->setWindowTitle(QStringLiteral("title"));
        button->setFont(QFont(QStringLiteral("Sans"), 30));
        button->setPalette(QPalette(Qt::red));
        QApplication::processEvents();
    }),
        IsEmpty());
}

TEST_F(ExtendedWinFileDialogStandIn, combinesVisibilityAndEnabledState)
{
    button->setEnabled(false);
    button->hide();
    EXPECT_THAT(states(), ElementsAre(0, 3, 3));
    button->show();
    EXPECT_THAT(states(), ElementsAre(visible, 3, 3));
    button->setEnabled(true);
    EXPECT_THAT(states(), ElementsAre(enabled | visible, 3, 3));
}

TEST_F(ExtendedWinFileDialogStandIn, worksBeforeDuringAndAfterARun)
{
    for (QWidget* const widget : all()) {
        widget->hide();
    }
    EXPECT_THAT(states(), ElementsAre(enabled, enabled, enabled));
    run(*dialog, [&](RecordingDialog&) {
        EXPECT_THAT(states(), ElementsAre(enabled, enabled, enabled));
        for (QWidget* const widget : all()) {
            widget->show();
            widget->setEnabled(false);
        }
        EXPECT_THAT(states(), ElementsAre(visible, visible, visible));
        EXPECT_EQ(windowsOnScreen(), 0);
    });
    for (QWidget* const widget : all()) {
        widget->setEnabled(true);
    }
    EXPECT_THAT(states(), ElementsAre(3, 3, 3));
    run(*dialog);
    EXPECT_THAT(states(), ElementsAre(3, 3, 3));
}

TEST_F(ExtendedWinFileDialogStandIn, opensNoWindowOfItsOwn)
{
    EXPECT_EQ(windowsOnScreen(), 0);
    for (QWidget* const widget : all()) {
        widget->show();
        widget->hide();
        widget->show();
        widget->raise();
        widget->activateWindow();
    }
    QApplication::processEvents();
    EXPECT_EQ(windowsOnScreen(), 0);
}

TEST_F(ExtendedWinFileDialogStandIn, makesNoShellCallWhenDestroyed)
{
    button->hide();
    EXPECT_THAT(callsOf([&] { dialog->clearAcceptMenuOptions(); }),
        ElementsAre(customizeQuery, "IFileDialogCustomize::RemoveControlItem(0, 3)"));
    EXPECT_THAT(callsOf([&] { dialog.reset(); }), ElementsAre("CoUninitialize()"));
}

TEST_F(ExtendedWinFileDialogStandIn, destroysTheStandInsOfRemovedOptionsOnly)
{
    const QPointer<QWidget> keptButton(button);
    const QPointer<QWidget> removed(option);
    dialog->clearAcceptMenuOptions();
    EXPECT_FALSE(removed);
    EXPECT_TRUE(keptButton);
}

TEST_F(ExtendedWinFileDialogStandIn, canBeChangedFromAnotherControlsAction)
{
    dialog->addCustomButton("Lock", [&] {
        button->setEnabled(false);
        option->hide();
    });
    run(*dialog, [&](RecordingDialog& user) {
        user.userClicks(4);
        EXPECT_THAT(states(), ElementsAre(visible, 3, enabled));
    });
}

TEST_F(ExtendedWinFileDialogStandIn, isNeverPainted)
{
    struct PaintCounter : QObject
    {
        bool eventFilter(QObject* watched, QEvent* event) override
        {
            count += watched->isWidgetType() && event->type() == QEvent::UpdateRequest;
            return false;
        }
        int count = 0;
    } painted;
    qApp->installEventFilter(&painted);
    option->hide();
    option->show();
    QCoreApplication::processEvents();
    run(*dialog, [](RecordingDialog&) { QCoreApplication::processEvents(); });
    EXPECT_EQ(painted.count, 0) << "a picture takes time and memory, and no one sees it";
}

TEST_F(ExtendedWinFileDialogStandIn, doesNotKeepTheApplicationFromEnding)
{
    for (const QWidget* const widget : all()) {
        EXPECT_FALSE(widget->testAttribute(Qt::WA_QuitOnClose));
    }
}

} // namespace

} // namespace morvane::test
