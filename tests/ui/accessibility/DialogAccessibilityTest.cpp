// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "property/Property.h"
#include "support/FileDialogDriver.h"
#include "support/ModalScript.h"
#include "support/QtPrinters.h"
#include "ui/qt/dialogs/ExtendedFileDialog.h"
#include "ui/qt/dialogs/ExtendedWinFileDialog.h"
#include "ui/qt/dialogs/QExtendedFileDialog.h"
#include "ui/qt/dialogs/SaveFileDialog.h"
#include "ui/qt/dialogs/shell/WidgetShell_p.h"
#include "WidgetAccessibility.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

#include <algorithm>

namespace morvane::test {

namespace {

using ::testing::UnorderedElementsAreArray;

QAbstractButton* buttonNamed(const QWidget& window, const QString& name)
{
    for (QAbstractButton* const button : window.findChildren<QAbstractButton*>()) {
        if (button->isVisible() && nameOf(button) == name) {
            return button;
        }
    }
    ADD_FAILURE() << "no button " << name.toStdString();
    return nullptr;
}

void activate(QWidget& window)
{
    window.activateWindow();
    ASSERT_TRUE(waitUntil([&window] { return QApplication::activeWindow() == &window; }));
}

std::ptrdiff_t positionIn(const std::vector<QWidget*>& walk, const QWidget* widget)
{
    return std::find(walk.begin(), walk.end(), widget) - walk.begin();
}

class DialogAccessibility : public ::testing::Test
{
protected:
    DialogAccessibility() { owner.show(); }

    /** Shows the native dialog with a control of each kind and calls @p look with it. */
    void showNative(const std::function<void(QFileDialog&)>& look)
    {
        ExtendedWinFileDialog dialog(owner, "Export", folder.path().toStdString(), "Data (*.dat);;Text (*.txt)",
            "exporting", QFileDialog::AcceptSave, true);
        dialog.selectFile("run");
        dialog.addCustomCheckBox("Com&press", compress);
        dialog.addCustomButton("&Lock", [this] { ++clicks; });
        dialog.addAcceptButtonOption("Save", 1);
        dialog.addAcceptButtonOption("Save and close", 2);
        ModalScript user;
        user.on<QFileDialog>([&look](QFileDialog& window) {
            activate(window);
            look(window);
            if (window.isVisible()) {
                window.reject();
            }
        });
        result = dialog.exec();
        option = dialog.selectedAcceptMenuOption();
        EXPECT_TRUE(user.finished());
    }

    void showQt(const std::function<void(QFileDialog&)>& look)
    {
        QExtendedFileDialog dialog(
            owner, "Open", folder.path().toStdString(), "Data (*.dat)", "opening", QFileDialog::AcceptOpen);
        ModalScript user;
        user.on<QFileDialog>([&look](QFileDialog& window) {
            activate(window);
            look(window);
            window.reject();
        });
        dialog.exec();
        EXPECT_TRUE(user.finished());
    }

    QTemporaryDir folder;
    ui::WidgetShell shell{ui::WidgetShell::Appearance::AlwaysWidgets};
    ui::ShellOverride guard{shell};
    QWidget owner;
    boost::shared_ptr<Property<bool>> compress = boost::make_shared<Property<bool>>(false);
    int clicks = 0;
    int result = -1;
    int option = -1;
};

TEST_F(DialogAccessibility, everyPartOfTheQtDialogHasANameAndARole)
{
    showQt([](QFileDialog& window) {
        EXPECT_EQ(namelessPartsOf(window), QStringList());
        EXPECT_EQ(nameOf(&window), "Open");
        EXPECT_EQ(roleOf(&window), QAccessible::Dialog);
        EXPECT_EQ(roleOf(buttonNamed(window, "Help")), QAccessible::Button);
    });
}

TEST_F(DialogAccessibility, everyPartOfTheNativeDialogWithControlsHasANameAndARole)
{
    showNative([](QFileDialog& window) {
        EXPECT_EQ(namelessPartsOf(window), QStringList());
        EXPECT_EQ(roleOf(buttonNamed(window, "Compress")), QAccessible::CheckBox);
        EXPECT_EQ(roleOf(buttonNamed(window, "Lock")), QAccessible::Button);
        EXPECT_EQ(roleOf(buttonNamed(window, "Help")), QAccessible::Button);
        EXPECT_EQ(roleOf(buttonNamed(window, "More ways to accept")), QAccessible::ButtonMenu);
    });
}

TEST_F(DialogAccessibility, theListsOfFoldersAndTypesHaveTheNamesThatStandBesideThem)
{
    const auto look = [](QFileDialog& window) {
        EXPECT_EQ(nameOf(window.findChild<QComboBox*>("lookInCombo")), "Look in:");
        EXPECT_EQ(nameOf(window.findChild<QComboBox*>("fileTypeCombo")), "Files of type:");
    };
    showQt(look);
    showNative(look);
}

TEST_F(DialogAccessibility, tabReachesEveryPartOfTheQtDialogAndComesBack)
{
    showQt([](QFileDialog& window) {
        const std::vector<QWidget*> walk = walkWithTab(window);
        EXPECT_THAT(described(walk), UnorderedElementsAreArray(described(tabStopsOf(window))));
    });
}

TEST_F(DialogAccessibility, tabReachesEveryPartOfTheNativeDialogAndComesBack)
{
    showNative([](QFileDialog& window) {
        const std::vector<QWidget*> walk = walkWithTab(window);
        EXPECT_THAT(described(walk), UnorderedElementsAreArray(described(tabStopsOf(window))));
    });
}

TEST_F(DialogAccessibility, shiftTabGoesTheSameWayBack)
{
    showNative([](QFileDialog& window) {
        std::vector<QWidget*> walk = walkWithTab(window);
        std::rotate(walk.begin(), walk.end() - 1, walk.end());
        std::reverse(walk.begin(), walk.end());
        EXPECT_EQ(described(walkWithTab(window, true)), described(walk));
    });
}

TEST_F(DialogAccessibility, controlsOfTheHostComeInTheirOrder)
{
    showNative([](QFileDialog& window) {
        const std::vector<QWidget*> walk = walkWithTab(window);
        EXPECT_EQ(positionIn(walk, buttonNamed(window, "Lock")), positionIn(walk, buttonNamed(window, "Compress")) + 1);
        EXPECT_EQ(positionIn(walk, buttonNamed(window, "More ways to accept")),
            positionIn(walk, buttonNamed(window, "Save")) + 1)
            << described(walk).join(", ").toStdString();
    });
}

TEST_F(DialogAccessibility, controlsOfTheHostWorkByKeys)
{
    showNative([this](QFileDialog& window) {
        auto* const box = qobject_cast<QCheckBox*>(buttonNamed(window, "Compress"));
        ASSERT_TRUE(box);
        box->setFocus(Qt::TabFocusReason);
        QTest::keyClick(box, Qt::Key_Space);
        EXPECT_TRUE(compress->value());
        QTest::keyClick(&window, Qt::Key_P, Qt::AltModifier);
        EXPECT_TRUE(waitUntil([this] { return !compress->value(); }));
        QTest::keyClick(&window, Qt::Key_L, Qt::AltModifier);
        EXPECT_TRUE(waitUntil([this] { return clicks == 1; }));
    });
}

TEST_F(DialogAccessibility, anOptionOfTheAcceptButtonIsTakenByKeys)
{
    showNative([](QFileDialog& window) {
        auto* const arrow = qobject_cast<QToolButton*>(buttonNamed(window, "More ways to accept"));
        ASSERT_TRUE(arrow);
        arrow->setFocus(Qt::TabFocusReason);
        QTimer::singleShot(0, arrow, [arrow] {
            QMenu* const menu = arrow->menu();
            ASSERT_TRUE(QTest::qWaitForWindowExposed(menu));
            EXPECT_EQ(roleOf(menu), QAccessible::PopupMenu);
            QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(menu);
            ASSERT_EQ(accessible->childCount(), 2);
            EXPECT_EQ(accessible->child(1)->text(QAccessible::Name), "Save and close");
            QTest::keyClick(menu, Qt::Key_Down);
            while (menu->activeAction() != menu->actions().last()) {
                QTest::keyClick(menu, Qt::Key_Down);
            }
            QTest::keyClick(menu, Qt::Key_Return);
        });
        QTest::keyClick(arrow, Qt::Key_Space);
    });
    EXPECT_EQ(result, QDialog::Accepted);
    EXPECT_EQ(option, 2);
}

TEST_F(DialogAccessibility, controlsOfTheHostMirrorFromRightToLeft)
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    showNative([](QFileDialog& window) {
        QAbstractButton* const save = buttonNamed(window, "Save");
        QAbstractButton* const arrow = buttonNamed(window, "More ways to accept");
        ASSERT_TRUE(save && arrow);
        EXPECT_EQ(arrow->x(), 0);
        EXPECT_LT(arrow->width(), save->width() / 2);
        EXPECT_GT(buttonNamed(window, "Compress")->x(), buttonNamed(window, "Lock")->x());
    });
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST_F(DialogAccessibility, theQtDialogMirrorsFromRightToLeft)
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    showQt([](QFileDialog& window) {
        const QLineEdit& name = FileDialogDriver(window).nameEdit();
        EXPECT_LT(buttonNamed(window, "Open")->mapTo(&window, QPoint()).x(), name.x());
        EXPECT_LT(buttonNamed(window, "Help")->mapTo(&window, QPoint()).x(), name.x());
    });
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST_F(DialogAccessibility, theQtDialogCanBeReadOnADarkPalette)
{
    const DarkPalette dark;
    showQt([](QFileDialog& window) {
        QApplication::processEvents();
        QLineEdit& name = FileDialogDriver(window).nameEdit();
        name.setText("run-17.dat");
        for (QWidget* const part : {static_cast<QWidget*>(buttonNamed(window, "Open")),
                 static_cast<QWidget*>(buttonNamed(window, "Help")), static_cast<QWidget*>(&name)}) {
            EXPECT_GE(drawnContrast(*part), 4.5) << nameOf(part).toStdString();
        }
    });
}

TEST_F(DialogAccessibility, controlsOfTheHostCanBeReadOnADarkPalette)
{
    const DarkPalette dark;
    showNative([](QFileDialog& window) {
        QApplication::processEvents();
        for (const char* const name : {"Save", "Compress", "Lock", "Help", "More ways to accept"}) {
            QAbstractButton* const button = buttonNamed(window, QLatin1String(name));
            ASSERT_TRUE(button);
            EXPECT_GE(drawnContrast(*button), 4.5) << name;
        }
    });
}

/** The questions of the save flow, on the native dialog (true) and the Qt dialog (false). */
class DialogAccessibilityQuestions : public ::testing::TestWithParam<bool>
{
protected:
    DialogAccessibilityQuestions()
    {
        ExtendedFileDialog::setUseNativeFileDialog(GetParam());
        QFile file(folder.filePath("report.txt"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        owner.show();
    }
    ~DialogAccessibilityQuestions() override { ExtendedFileDialog::setUseNativeFileDialog(true); }

    /** Accepts the existing name or another one with keys, and calls @p look with the question. */
    void askOnce(const std::function<void(QMessageBox&)>& look, const QString& otherName = QString())
    {
        SaveFileDialog dialog(&owner, "Save report", folder.path().toStdString(), "report", "Text (*.txt)", "");
        ModalScript user;
        user.on<QFileDialog>([&otherName](QFileDialog& window) {
            ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
            const FileDialogDriver driver(window);
            if (!otherName.isEmpty()) {
                driver.nameEdit().setText(otherName);
            }
            driver.pressEnter();
        });
        user.on<QMessageBox>([&look](QMessageBox& box) {
            ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
            look(box);
        });
        saved = dialog.launch();
        EXPECT_TRUE(user.finished());
    }

    QTemporaryDir folder;
    ui::WidgetShell shell{ui::WidgetShell::Appearance::AlwaysWidgets};
    ui::ShellOverride guard{shell};
    QWidget owner;
    bool saved = false;
};

TEST_P(DialogAccessibilityQuestions, haveNamesAndRoles)
{
    askOnce([](QMessageBox& box) {
        EXPECT_EQ(namelessPartsOf(box), QStringList());
        EXPECT_EQ(nameOf(&box), "Save report");
        EXPECT_EQ(roleOf(&box), QAccessible::AlertMessage);
        EXPECT_TRUE(nameOf(box.findChild<QLabel*>("qt_msgbox_label")).contains("report.txt"));
        box.button(QMessageBox::Yes)->click();
    });
}

TEST_P(DialogAccessibilityQuestions, startAtNoAndAreAnsweredByKeys)
{
    askOnce([](QMessageBox& box) {
        EXPECT_EQ(box.focusWidget(), box.button(QMessageBox::No));
        EXPECT_EQ(walkWithTab(box).size(), 2u);
        box.button(QMessageBox::Yes)->setFocus();
        QTest::keyClick(box.button(QMessageBox::Yes), Qt::Key_Space);
    });
    EXPECT_TRUE(saved);
}

TEST_P(DialogAccessibilityQuestions, aboutARefusedPlaceHaveNamesAndAreAnsweredByKeys)
{
#ifndef __linux__
    GTEST_SKIP() << "no place refuses everybody here";
#endif
    const auto look = [](QMessageBox& box) {
        EXPECT_EQ(namelessPartsOf(box), QStringList());
        EXPECT_EQ(roleOf(&box), QAccessible::AlertMessage);
        EXPECT_TRUE(nameOf(box.findChild<QLabel*>("qt_msgbox_label")).contains("/proc/report.txt"));
        EXPECT_EQ(walkWithTab(box).size(), box.buttons().size());
        box.button(QMessageBox::No)->setFocus();
        QTest::keyClick(box.button(QMessageBox::No), Qt::Key_Space);
    };
    askOnce(look, "/proc/report.txt");
    EXPECT_FALSE(saved);
}

TEST_P(DialogAccessibilityQuestions, canBeReadOnADarkPalette)
{
    const DarkPalette dark;
    askOnce([](QMessageBox& box) {
        EXPECT_GE(drawnContrast(*box.findChild<QLabel*>("qt_msgbox_label")), 4.5);
        EXPECT_GE(drawnContrast(*box.button(QMessageBox::No)), 4.5);
        box.button(QMessageBox::Yes)->click();
    });
}

INSTANTIATE_TEST_SUITE_P(Dialog, DialogAccessibilityQuestions, ::testing::Values(true, false),
    [](const ::testing::TestParamInfo<bool>& dialog) { return dialog.param ? "native" : "qt"; });

} // namespace

} // namespace morvane::test
