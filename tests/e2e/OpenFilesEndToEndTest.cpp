// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "e2e/Eventually.h"
#include "e2e/GallerySession.h"

namespace morvane::test {

namespace {

class OpenFilesEndToEnd : public GallerySession
{
protected:
    void SetUp() override
    {
        GallerySession::SetUp();
        makeFile(QStringLiteral("first.dat"), "1");
        makeFile(QStringLiteral("second.dat"), "22");
        makeFile(QStringLiteral("third.dat"), "333");
        makeFile(QStringLiteral("notes.txt"));
        openGallery(QStringLiteral("open"));
    }
};

TEST_F(OpenFilesEndToEnd, choosesSeveralFilesWithTheMouse)
{
    click(part(QStringLiteral("check box"), QStringLiteral("Several files")));
    click(part(pushButton, QStringLiteral("Open…")));
    waitForWindow(QStringLiteral("Open"));
    const Accessible dialog = part(QStringLiteral("dialog"), QStringLiteral("Open"));
    const Accessible files = partOf(dialog, QStringLiteral("tree"), QStringLiteral("Files"));
    waitForOrder(files, {QStringLiteral("first.dat"), QStringLiteral("second.dat"), QStringLiteral("third.dat")});
    const Accessible first = itemOf(files, QStringLiteral("first.dat"));
    click(first);
    ASSERT_TRUE(eventually([&] { return first.isSelected(); }));
    screen().click(itemOf(files, QStringLiteral("third.dat")).rectangle().center(), Key::Control);
    click(partOf(dialog, pushButton, QStringLiteral("Open")));
    waitForReport(path(QStringLiteral("first.dat")));
    waitForReport(path(QStringLiteral("third.dat")));
    closeGallery();
}

TEST_F(OpenFilesEndToEnd, choosesAFileWithTheKeyboardAlone)
{
    part(pushButton, QStringLiteral("Open…"));
    screen().press({Key::Alt}, 'o');
    waitForWindow(QStringLiteral("Open"));
    const Accessible dialog = part(QStringLiteral("dialog"), QStringLiteral("Open"));
    const Accessible name = partOf(dialog, QStringLiteral("text"), QStringLiteral("File name:"));
    screen().press({Key::Alt}, 'n');
    type(name, path(QStringLiteral("second.dat")));
    screen().press(Key::Return);
    waitForReport(path(QStringLiteral("second.dat")));
    closeGallery();
}

TEST_F(OpenFilesEndToEnd, leavesTheDialogWithEscape)
{
    click(part(pushButton, QStringLiteral("Open…")));
    waitForWindow(QStringLiteral("Open"));
    waitForFocus(partOf(
        part(QStringLiteral("dialog"), QStringLiteral("Open")), QStringLiteral("text"), QStringLiteral("File name:")));
    screen().press(Key::Escape);
    waitForReport(QStringLiteral("Dialog cancelled"));
    closeGallery();
}

} // namespace

} // namespace morvane::test
