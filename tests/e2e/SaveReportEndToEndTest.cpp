#include "e2e/Eventually.h"
#include "e2e/GallerySession.h"

namespace morvane::test {

namespace {

const QString button = QStringLiteral("push button");

class SaveReportEndToEnd : public GallerySession
{
protected:
    void SetUp() override
    {
        GallerySession::SetUp();
        makeFile(QStringLiteral("report.txt"), old);
        openGallery(QStringLiteral("save-report"));
    }

    /** Asks for the file that is there and waits for the question whether it may be replaced. */
    void saveOverTheFile()
    {
        click(part(button, QStringLiteral("Save Report…")));
        waitForWindow(QStringLiteral("Save Report"));
        const Accessible dialog = part(QStringLiteral("dialog"), QStringLiteral("Save Report"));
        fill(partOf(dialog, QStringLiteral("text"), QStringLiteral("File name:")), path(QStringLiteral("report.txt")));
        screen().press(Key::Return);
        part(QStringLiteral("alert"), QString());
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
    saveOverTheFile();
    screen().press({Key::Alt}, 'n');
    waitForWindow(QStringLiteral("Save Report"));
    screen().press(Key::Escape);
    waitForReport(QStringLiteral("Written: nothing"));
    EXPECT_EQ(contentOf(QStringLiteral("report.txt")), old);
    closeGallery();
}

} // namespace

} // namespace morvane::test
