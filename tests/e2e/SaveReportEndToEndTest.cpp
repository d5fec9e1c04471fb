// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "e2e/GallerySession.h"

namespace morvane::test {

namespace {

class SaveReportEndToEnd : public GallerySession
{
protected:
    void SetUp() override
    {
        GallerySession::SetUp();
        makeFile(QStringLiteral("report.txt"), old);
        openGallery(QStringLiteral("save-report"));
    }

    /** Saves under the name of the existing file. Returns the overwrite question as soon as it can be answered. */
    Accessible saveOverTheFile()
    {
        click(part(pushButton, QStringLiteral("Save Report…")));
        waitForWindow(QStringLiteral("Save Report"));
        const Accessible dialog = part(QStringLiteral("dialog"), QStringLiteral("Save Report"));
        type(partOf(dialog, QStringLiteral("text"), QStringLiteral("File name:")), path(QStringLiteral("report.txt")));
        screen().press(Key::Return);
        // The question has the same title as the dialog.
        const Accessible question = part(QStringLiteral("alert message"), QStringLiteral("Save Report"));
        waitForFocus(partOf(question, pushButton, QStringLiteral("No")));
        return question;
    }

    const QByteArray old = "an older report";
};

TEST_F(SaveReportEndToEnd, replacesAFileAfterAsking)
{
    saveOverTheFile();
    screen().press({Key::Alt}, 'y');
    waitForReport(QStringLiteral("Written: ") + path(QStringLiteral("report.txt")));
    const QByteArray content = contentOf(QStringLiteral("report.txt"));
    EXPECT_NE(content, old);
    EXPECT_TRUE(content.contains("Readings of the test bench")) << content.toStdString();
    closeGallery();
}

TEST_F(SaveReportEndToEnd, leavesTheFileAloneWhenTheAnswerIsNo)
{
    const Accessible question = saveOverTheFile();
    screen().press({Key::Alt}, 'n');
    waitForEnd(question);
    waitForFocus(partOf(part(QStringLiteral("dialog"), QStringLiteral("Save Report")), QStringLiteral("text"),
        QStringLiteral("File name:")));
    screen().press(Key::Escape);
    waitForReport(QStringLiteral("Nothing was written: given up"));
    EXPECT_EQ(contentOf(QStringLiteral("report.txt")), old);
    closeGallery();
}

} // namespace

} // namespace morvane::test
