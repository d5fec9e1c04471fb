// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Blocks of cells between the gallery and LibreOffice Calc, through the clipboard of the X server.
#include "e2e/Eventually.h"
#include "e2e/GallerySession.h"

#include <QStandardPaths>
#include <QTest>
#include <QUrl>

namespace morvane::test {

namespace {

class TablePasteEndToEnd : public GallerySession
{
protected:
    void SetUp() override
    {
        for (const char* const program : {"soffice", "xclip"}) {
            if (QStandardPaths::findExecutable(QString::fromLatin1(program)).isEmpty()) {
                GTEST_SKIP() << "not installed: " << program;
            }
        }
        GallerySession::SetUp();
    }

    /** Opens a file of comma-separated values in Calc, which gets the focus. */
    void openCalc(const QByteArray& content)
    {
        makeFile(QStringLiteral("cells.csv"), content);
        m_calc = desktop().launch(QStringLiteral("soffice"),
            {QStringLiteral("-env:UserInstallation=") + QUrl::fromLocalFile(path(QStringLiteral("profile"))).toString(),
                QStringLiteral("--norestore"), QStringLiteral("--nologo"), QStringLiteral("--nofirststartwizard"),
                // Separated by commas, quoted with quotation marks, UTF-8, from the first line on.
                QStringLiteral("--infilter=Text - txt - csv (StarCalc):44,34,76,1"),
                path(QStringLiteral("cells.csv"))});
        ASSERT_TRUE(m_calc);
        // The first start makes the profile.
        if (!eventually([this] { return isCalcActive(); })) {
            waitForWindow(QStringLiteral("cells.csv"));
        }
    }
    bool isCalcActive() { return screen().activeTitle().startsWith(QStringLiteral("cells.csv")); }

    /** Copies all cells in Calc, again and again until it has finished loading and listens. */
    void copyInCalc(const QByteArray& expected)
    {
        QByteArray text;
        eventually([&] {
            screen().press({Key::Control}, Key::Home);
            screen().press({Key::Control, Key::Shift}, Key::End);
            screen().press({Key::Control}, 'c');
            text = clipboardText();
            return text == expected;
        });
        ASSERT_EQ(text, expected);
    }

    /** Clicks on the cell, and waits because keys can overtake a click in the window manager. */
    void chooseCell(const QString& text)
    {
        const Accessible cell = itemOf(points(), text);
        click(cell);
        ASSERT_TRUE(eventually([&] { return cell.isSelected(); }));
    }
    Accessible points() { return part(QStringLiteral("table"), QStringLiteral("Calibration points")); }

private:
    std::unique_ptr<DesktopProcess> m_calc;
};

TEST_F(TablePasteEndToEnd, aBlockCopiedInCalcIsPastedAndTakenBack)
{
    openCalc("1.75,100\n2.25,200.5\n");
    copyInCalc("1.75\t100\n2.25\t200.5\n");

    openGallery(QStringLiteral("table-paste"));
    chooseCell(QStringLiteral("0.5"));
    screen().press({Key::Control}, 'v');
    waitForReport(QStringLiteral("Pasted 2 rows with up to 2 columns"));
    itemOf(points(), QStringLiteral("1.75"));
    itemOf(points(), QStringLiteral("200.5"));

    screen().press({Key::Control}, 'z');
    itemOf(points(), QStringLiteral("0.5"));
    itemOf(points(), QStringLiteral("50"));
    closeGallery();
}

TEST_F(TablePasteEndToEnd, oneCellThatIsNoNumberKeepsTheWholeBlockOut)
{
    openCalc("1.75,100\n2.25,high\n");
    copyInCalc("1.75\t100\n2.25\thigh\n");

    openGallery(QStringLiteral("table-paste"));
    chooseCell(QStringLiteral("0.5"));
    screen().press({Key::Control}, 'v');
    waitForReport(QStringLiteral("Nothing was pasted. Cells in the way: 1"));
    itemOf(points(), QStringLiteral("0.5"));
    closeGallery();
}

TEST_F(TablePasteEndToEnd, aBlockCopiedHereIsPastedIntoCalc)
{
    openGallery(QStringLiteral("table-paste"));
    const Accessible last = itemOf(points(), QStringLiteral("50"));
    screen().drag(itemOf(points(), QStringLiteral("0.5")).rectangle().center(), last.rectangle().center());
    ASSERT_TRUE(eventually([&] { return last.isSelected(); }));
    screen().press({Key::Control}, 'c');
    expectOnClipboard("0.5\t25\n1\t50");

    openCalc("x,y,z\nx,y,z\nx,y,z\n");
    // Calc asks how to read text. It may not listen yet, so the key is pressed until it does.
    eventually([this] {
        if (isCalcActive()) {
            screen().press({Key::Control}, Key::Home);
            screen().press({Key::Control}, 'v');
        }
        return QTest::qWaitFor([this] { return !isCalcActive(); }, 2000);
    });
    screen().press(Key::Return);
    waitForWindow(QStringLiteral("cells.csv"));
    // The block stands in the corner of what was there, and Calc ends each row with a line feed.
    copyInCalc("0.5\t25\tz\n1\t50\tz\nx\ty\tz\n");
}

} // namespace

} // namespace morvane::test
