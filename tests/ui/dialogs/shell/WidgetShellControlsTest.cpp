// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The controls of the host among those of the dialog.
#include "WidgetShellRunTest.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>

namespace morvane::test {

namespace {

class WidgetShellControls : public WidgetShellRun
{
};

using namespace morvane::ui;

TEST_F(WidgetShellControls, controlsAppearAndFollowTheirState)
{
    customize->AddPushButton(1, text("First").c_str());
    customize->AddPushButton(2, text("Second").c_str());
    customize->AddCheckButton(3, text("Third").c_str(), TRUE);
    customize->SetControlState(2, CDCS_ENABLED);
    show([&](QFileDialog& window) {
        const FileDialogDriver driver = FileDialogDriver::whenActive(window);
        EXPECT_TRUE(driver.control(QStringLiteral("First")));
        EXPECT_FALSE(driver.control(QStringLiteral("Second")));
        EXPECT_TRUE(driver.control(QStringLiteral("Third"))->isChecked());
        customize->SetControlState(1, CDCS_VISIBLE);
        EXPECT_FALSE(driver.control(QStringLiteral("First"))->isEnabled());
        customize->SetControlState(2, CDCS_ENABLEDVISIBLE);
        EXPECT_TRUE(driver.control(QStringLiteral("Second"))->isEnabled());
        customize->SetCheckButtonState(3, FALSE);
        EXPECT_FALSE(driver.control(QStringLiteral("Third"))->isChecked());
        customize->AddPushButton(4, text("Late").c_str());
        EXPECT_TRUE(driver.control(QStringLiteral("Late")));
        customize->SetControlLabel(4, text("Later").c_str());
        EXPECT_TRUE(driver.control(QStringLiteral("Later")));
        window.reject();
    });
}

TEST_F(WidgetShellControls, theProminentButtonStandsWithTheDialogsOwn)
{
    customize->AddPushButton(1, text("Plain").c_str());
    customize->AddPushButton(2, text("Help").c_str());
    ASSERT_EQ(customize->MakeProminent(2), S_OK);
    show([](QFileDialog& window) {
        auto* const box = window.findChild<QDialogButtonBox*>();
        const FileDialogDriver driver = FileDialogDriver::whenActive(window);
        EXPECT_TRUE(box->isAncestorOf(driver.control(QStringLiteral("Help"))));
        EXPECT_FALSE(box->isAncestorOf(driver.control(QStringLiteral("Plain"))));
        window.reject();
    });
}

TEST_F(WidgetShellControls, theArrowOfTheAcceptButtonIsThereWhileThereIsAnItem)
{
    customize->EnableOpenDropDown(0);
    show([&](QFileDialog& window) {
        auto* const arrow = FileDialogDriver::whenActive(window).acceptButton().findChild<QToolButton*>();
        ASSERT_TRUE(arrow);
        EXPECT_FALSE(arrow->isVisible());
        customize->AddControlItem(0, 1, text("Open as copy").c_str());
        EXPECT_TRUE(arrow->isVisible());
        customize->RemoveControlItem(0, 1);
        EXPECT_FALSE(arrow->isVisible());
        window.reject();
    });
}

TEST_F(WidgetShellControls, enterPressesTheButtonThatHasTheFocusAndElseAccepts)
{
    customize->AddPushButton(1, text("Plain").c_str());
    customize->AddPushButton(2, text("Prominent").c_str());
    customize->AddCheckButton(3, text("Check").c_str(), FALSE);
    ASSERT_EQ(customize->MakeProminent(2), S_OK);
    dialog->SetFileName(text("a.txt").c_str());
    sink.on["OnFileOk"] = [] { return S_FALSE; };
    show([&](QFileDialog& window) {
        const FileDialogDriver driver = FileDialogDriver::whenActive(window);
        for (const char* const label : {"Plain", "Prominent", "Check"}) {
            driver.control(QString::fromUtf8(label))->setFocus();
            QTest::keyClick(driver.control(QString::fromUtf8(label)), Qt::Key_Return);
        }
        driver.nameEdit().setFocus();
        driver.pressEnter();
        window.reject();
    });
    EXPECT_EQ(sink.count("OnButtonClicked 1"), 1);
    EXPECT_EQ(sink.count("OnButtonClicked 2"), 1);
    EXPECT_EQ(sink.count("OnCheckButtonToggled 3 1"), 0);
    EXPECT_EQ(sink.count("OnFileOk"), 2) << "from the check button and from the name";
}

TEST_F(WidgetShellControls, controlsLineUpWithTheRowsOfTheDialog)
{
    customize->AddPushButton(1, text("Button").c_str());
    customize->AddCheckButton(2, text("Check").c_str(), FALSE);
    show([](QFileDialog& window) {
        for (const char* const label : {"Button", "Check"}) {
            const auto* const control = FileDialogDriver::whenActive(window).control(QString::fromUtf8(label));
            EXPECT_EQ(control->width(), control->sizeHint().width()) << "side by side, not all over the row";
        }
        const auto left = [&window](const QWidget* widget) { return widget->mapTo(&window, QPoint()).x(); };
        EXPECT_EQ(left(FileDialogDriver::whenActive(window).control(QStringLiteral("Button"))),
            left(window.findChild<QWidget*>(QStringLiteral("lookInLabel"))));
        window.reject();
    });
}

TEST_F(WidgetShellControls, anItemMayBeTriggeredWithoutTheMenuAsAssistiveTechnologyDoes)
{
    customize->EnableOpenDropDown(0);
    customize->AddControlItem(0, 1, text("Open as copy").c_str());
    dialog->SetFileName(text("a.txt").c_str());
    const HRESULT hr = show([](QFileDialog& window) {
        FileDialogDriver::whenActive(window)
            .acceptButton()
            .findChild<QToolButton*>()
            ->menu()
            ->actions()
            .constFirst()
            ->trigger();
    });
    EXPECT_EQ(hr, S_OK);
    EXPECT_EQ(sink.count("OnItemSelected 0 1"), 1);
}

TEST_F(WidgetShellControls, closingTheDialogAsItsMenuOpensLeavesNoMenu)
{
    customize->EnableOpenDropDown(0);
    customize->AddControlItem(0, 1, text("Open as copy").c_str());
    dialog->SetFileName(text("a.txt").c_str());
    sink.on["OnControlActivating"] = [&] { return dialog->Close(E_ABORT); };
    const HRESULT hr = show([](QFileDialog& window) {
        QTest::mouseClick(
            FileDialogDriver::whenActive(window).acceptButton().findChild<QToolButton*>(), Qt::LeftButton);
    });
    EXPECT_EQ(hr, E_ABORT);
    EXPECT_EQ(sink.count("OnControlActivating 0"), 1);
    EXPECT_FALSE(QApplication::activePopupWidget());
}

} // namespace

} // namespace morvane::test
