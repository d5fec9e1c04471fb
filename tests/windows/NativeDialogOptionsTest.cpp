// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// What FileDialogCustomization adds to the Shell's own dialog: a check with a reason, texts, options of the save flow.
#include "property/Property.h"
#include "ui/qt/dialogs/FileDialogCustomization.h"
#include "ui/qt/dialogs/SaveFileDialog.h"
#include "windows/NativeDialogFixture.h"

#include <boost/make_shared.hpp>

#include <atomic>

using namespace morvane::test;
using morvane::Property;
using morvane::ValidationResult;

namespace {

using NativeDialogOptions = NativeDialogTest;

/** Refuses every name that begins with "large", and keeps what it was asked about. */
morvane::ui::FileDialogCustomization::AcceptanceCheck refuseLarge(QStringList& asked)
{
    return [&asked](const QStringList& paths) {
        asked += paths;
        const bool isLarge = QFileInfo(paths.value(0)).fileName().startsWith(QStringLiteral("large"));
        return isLarge ? ValidationResult("Zu groß: \xF0\x9F\x93\xB7") : ValidationResult();
    };
}

TEST_F(NativeDialogOptions, refusalIsToldAboveTheDialogWhichStaysOpen)
{
    const auto dialog = makeDialog(QFileDialog::AcceptSave);
    QStringList asked;
    dialog->customization()->setAcceptanceCheck(refuseLarge(asked));
    const auto result = run(*dialog, [](NativeDialog& shown) {
        for (int i = 0; i < 2; ++i) { // the second time, too
            shown.accept(L"large.dat");
            EXPECT_TRUE(shown.waitForQuestion());
            EXPECT_EQ(shown.questionTitle(), L"Native");
            EXPECT_EQ(shown.questionText(), L"Zu groß: \U0001F4F7");
            EXPECT_FALSE(IsWindowEnabled(shown.window())) << "the question is the dialog's own";
            shown.answer(IDOK);
            EXPECT_TRUE(waitUntil([&shown] { return !shown.hasQuestion(); }));
            EXPECT_TRUE(shown.isOpen());
            EXPECT_TRUE(waitUntil([&shown] { return IsWindowEnabled(shown.window()) != 0; }));
        }
        shown.accept(L"small.dat");
    });
    EXPECT_EQ(result, QDialog::Accepted);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(path(QStringLiteral("small.dat"))));
    const QString large = path(QStringLiteral("large.dat"));
    EXPECT_EQ(asked, QStringList({large, large, path(QStringLiteral("small.dat"))}));
}

TEST_F(NativeDialogOptions, afterARefusalTheUserMayCancelAndComeBack)
{
    const auto dialog = makeDialog(QFileDialog::AcceptSave);
    QStringList asked;
    dialog->customization()->setAcceptanceCheck(refuseLarge(asked));
    const auto refused = [](NativeDialog& shown) {
        shown.accept(L"large.dat");
        EXPECT_TRUE(shown.waitForQuestion());
        shown.answer(IDOK);
        EXPECT_TRUE(waitUntil([&shown] { return !shown.hasQuestion(); }));
        shown.cancel();
    };
    EXPECT_EQ(run(*dialog, refused), QDialog::Rejected);
    const auto result = run(*dialog, [](NativeDialog& shown) { shown.accept(L"small.dat"); });
    EXPECT_EQ(result, QDialog::Accepted);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(path(QStringLiteral("small.dat"))));
}

TEST_F(NativeDialogOptions, theCheckGetsAllFilesThatAreOpened)
{
    makeFile(QStringLiteral("a.dat"));
    makeFile(QStringLiteral("b.dat"));
    const auto dialog = makeDialog(QFileDialog::AcceptOpen);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    QStringList asked;
    dialog->customization()->setAcceptanceCheck(refuseLarge(asked));
    const auto result = run(*dialog, [](NativeDialog& shown) { shown.accept(L"\"a.dat\" \"b.dat\""); });
    EXPECT_EQ(result, QDialog::Accepted);
    EXPECT_EQ(asked, QStringList({path(QStringLiteral("a.dat")), path(QStringLiteral("b.dat"))}));
    EXPECT_EQ(dialog->selectedFiles(), asked);
}

TEST_F(NativeDialogOptions, theAcceptButtonHasTheTextOfTheHost)
{
    const auto dialog = makeDialog(QFileDialog::AcceptOpen);
    dialog->customization()->setAcceptButtonText("Über&nehmen");
    run(*dialog, [](NativeDialog& shown) {
        EXPECT_EQ(shown.text(NativeDialog::Accept), L"Über&nehmen");
        shown.cancel();
    });
}

TEST_F(NativeDialogOptions, theHostChangesAListWhileItIsOpen)
{
    const auto dialog = makeDialog(QFileDialog::AcceptOpen);
    const auto chosen = boost::make_shared<Property<int>>(0);
    dialog->customization()->addCustomComboBox("Unit:", {"mm", "m", "km"}, chosen);
    std::atomic<int> clicks{0};
    dialog->addCustomButton("Kilometres", [&] {
        chosen->setValue(2);
        ++clicks;
    });
    run(*dialog, [&](NativeDialog& shown) {
        EXPECT_EQ(shown.customListText(), L"mm");
        shown.press(shown.controlWithText(L"Kilometres"));
        EXPECT_TRUE(waitUntil([&clicks] { return clicks == 1; }));
        EXPECT_EQ(shown.customListText(), L"km");
        shown.cancel();
    });
    EXPECT_EQ(chosen->value(), 2) << "a value stays when the user cancels";
}

TEST_F(NativeDialogOptions, theSaveFlowHasOptionsThatAreKept)
{
    SaveFileDialog flow(&m_window, "Save", directory().toStdString(), "", std::string("Data (*.dat)"), "");
    const auto compressed = boost::make_shared<Property<bool>>(false);
    flow.customization()->addCustomCheckBox("Compressed", compressed);
    const auto name = [](const wchar_t* text) {
        return [text](NativeDialog& shown) {
            const int box = shown.controlWithText(L"Compressed");
            EXPECT_NE(box, 0);
            if (!shown.isChecked(box)) {
                shown.press(box);
                EXPECT_TRUE(waitUntil([&] { return shown.isChecked(box); }));
            }
            shown.accept(text);
        };
    };
    for (const wchar_t* const text : {L"one", L"two"}) {
        const DialogUser user(name(text));
        EXPECT_TRUE(flow.launch());
        EXPECT_TRUE(compressed->value());
    }
    EXPECT_EQ(flow.selectedFilename(), path(QStringLiteral("two.dat")).toStdString());
}

} // namespace
