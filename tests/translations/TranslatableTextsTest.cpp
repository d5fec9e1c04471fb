// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// With a translator that marks each text, every text that a person sees or hears has a mark, or comes from the host.

#include "TranslatableTextsFixture.h"

#include "host/HelpLauncher.h"
#include "property/Property.h"
#include "support/FileDialogDriver.h"
#include "support/ModalScript.h"
#include "ui/qt/dialogs/ExtendedFileDialog.h"
#include "ui/qt/dialogs/ExtendedWinFileDialog.h"
#include "ui/qt/dialogs/LaunchFileDialogOptions.h"
#include "ui/qt/dialogs/QExtendedFileDialog.h"
#include "ui/qt/dialogs/SaveFileDialog.h"

#include <boost/make_shared.hpp>

namespace {

using namespace morvane::test;

TEST_F(TranslatableTexts, nativeDialogWithControlsAndHelp)
{
    QWidget parent;
    ExtendedWinFileDialog dialog(
        parent, "host caption", m_folder.path().toStdString(), "*.dat", "host-topic", QFileDialog::AcceptOpen, true);
    dialog.addCustomCheckBox("host box", boost::make_shared<morvane::Property<bool>>(true));
    dialog.addAcceptButtonOption("host option", 1);
    ModalScript user;
    user.on<QFileDialog>([&](QFileDialog& window) {
        expectTranslated(window);
        const auto buttons = window.findChildren<QAbstractButton*>();
        EXPECT_TRUE(std::any_of(buttons.begin(), buttons.end(),
            [](const QAbstractButton* button) { return button->text() == QString("&Help") + QChar(mark); }));
        window.reject();
    });
    dialog.exec();
    EXPECT_TRUE(user.finished());
}

/** All kinds of controls, with texts of the host. */
void addControls(morvane::ui::FileDialogCustomization& dialog)
{
    using morvane::Property;
    dialog.addCustomButton("host button", [] {});
    dialog.addCustomCheckBox("host box", boost::make_shared<Property<bool>>(true));
    dialog.addCustomComboBox("host list", {"host A", "host B"}, boost::make_shared<Property<int>>(0));
    dialog.addCustomRadioButtons("host choice", {"host A", "host B"}, boost::make_shared<Property<int>>(0));
    dialog.beginCustomGroup("host group");
    dialog.addCustomText("host text");
    dialog.addCustomLineEdit("host line", boost::make_shared<Property<std::string>>("host"));
    dialog.endCustomGroup();
    dialog.addCustomSeparator();
    dialog.setFileNameLabel("host name");
}

TEST_F(TranslatableTexts, controlsOfTheHostAndARefusedChoice)
{
    QFile existing(path("host.dat"));
    ASSERT_TRUE(existing.open(QIODevice::WriteOnly));
    for (const bool native : {true, false}) {
        QWidget parent;
        ExtendedFileDialog::setUseNativeFileDialog(native);
        ExtendedFileDialog dialog(
            parent, "host caption", m_folder.path().toStdString(), "host (*.dat)", "", QFileDialog::AcceptOpen);
        ExtendedFileDialog::setUseNativeFileDialog(true);
        addControls(*dialog.customization());
        // Without a reason of the host, the library says something.
        dialog.setAcceptanceCheck([](const QStringList&) { return morvane::ValidationResult(std::string()); });
        ModalScript user;
        user.on<QFileDialog>([&](QFileDialog& window) {
            expectTranslated(window);
            FileDialogDriver driver(window);
            driver.typeName("host.dat");
            driver.pressAccept();
        });
        user.on<QMessageBox>([&](QMessageBox& box) {
            EXPECT_TRUE(box.text().contains(QChar(mark))) << box.text().toStdString();
            expectTranslated(box);
            box.accept();
        });
        user.on<QFileDialog>([](QFileDialog& window) { window.reject(); });
        dialog.exec();
        EXPECT_TRUE(user.finished()) << native;
    }
}

TEST_F(TranslatableTexts, fileTypesThatTheLibraryNames)
{
    EXPECT_EQ(
        morvane::ui::LaunchFileDialogOptions().nameFilters(), QStringList(QString("All files (*)") + QChar(mark)));
}

TEST_F(TranslatableTexts, qtDialogWithHelp)
{
    QWidget parent;
    QExtendedFileDialog dialog(parent, "host caption", m_folder.path().toStdString(), "host files (*.dat)",
        "host-topic", QFileDialog::AcceptOpen);
    ModalScript user;
    user.on<QFileDialog>([&](QFileDialog& window) {
        expectTranslated(window);
        window.reject();
    });
    dialog.exec();
    EXPECT_TRUE(user.finished());
}

TEST_F(TranslatableTexts, questionsOfTheSaveFlow)
{
    QFile existing(path("host.dat"));
    ASSERT_TRUE(existing.open(QIODevice::WriteOnly));
    QWidget parent;
    SaveFileDialog dialog(&parent, "host caption", m_folder.path().toStdString(), "host.dat", "host (*.dat)", "");
    ModalScript user;
    user.on<QFileDialog>(FileDialogDriver::playing([](FileDialogDriver& driver) { driver.pressAccept(); }));
    user.on<QMessageBox>([&](QMessageBox& box) {
        EXPECT_TRUE(box.text().contains(QChar(mark))) << box.text().toStdString();
        expectTranslated(box);
        box.button(QMessageBox::No)->click();
    });
    user.on<QFileDialog>([](QFileDialog& window) { window.reject(); });
    EXPECT_FALSE(dialog.launch());
    EXPECT_TRUE(user.finished());
}

TEST_F(TranslatableTexts, helpThatCannotBeShown)
{
    ModalScript user;
    user.on<QMessageBox>([&](QMessageBox& box) {
        EXPECT_TRUE(box.text().contains(QChar(mark)));
        EXPECT_TRUE(box.windowTitle().contains(QChar(mark)));
        expectTranslated(box);
        box.accept();
    });
    morvane::HelpLauncher().showHelp("host-topic");
    EXPECT_TRUE(user.finished());
}

} // namespace
