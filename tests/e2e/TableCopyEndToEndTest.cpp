// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "e2e/Eventually.h"
#include "e2e/GallerySession.h"

#include <QStandardPaths>

namespace morvane::test {

namespace {

class TableCopyEndToEnd : public GallerySession
{
protected:
    void SetUp() override
    {
        if (QStandardPaths::findExecutable(QStringLiteral("xclip")).isEmpty()) {
            GTEST_SKIP() << "not installed: xclip";
        }
        GallerySession::SetUp();
        makeFile(QStringLiteral("a.txt"), QByteArray(1000, 'a'));
        makeFile(QStringLiteral("b.txt"), QByteArray(2000, 'b'));
        makeFile(QStringLiteral("c.txt"), QByteArray(3000, 'c'));
        openGallery(QStringLiteral("table-copy"));
    }

    /** Selects names and sizes of the first two files. */
    void selectBlock()
    {
        const Accessible table = part(QStringLiteral("table"), QStringLiteral("Files"));
        const Accessible last = itemOf(table, QStringLiteral("2000"));
        waitForOrder(table, {QStringLiteral("a.txt"), QStringLiteral("b.txt"), QStringLiteral("c.txt")});
        screen().drag(itemOf(table, QStringLiteral("a.txt")).rectangle().center(), last.rectangle().center());
        ASSERT_TRUE(eventually([&] { return last.isSelected(); }));
    }
};

TEST_F(TableCopyEndToEnd, givesTheSelectionToOtherPrograms)
{
    selectBlock();
    screen().press({Key::Control}, 'c');
    waitForReport(QStringLiteral("Lines on the clipboard: 2"));
    expectOnClipboard("a.txt\t1000\nb.txt\t2000");
    closeGallery();
}

TEST_F(TableCopyEndToEnd, pastesIntoAnEditor)
{
    if (QStandardPaths::findExecutable(QStringLiteral("featherpad")).isEmpty()) {
        GTEST_SKIP() << "not installed: featherpad";
    }
    selectBlock();
    screen().press({Key::Control}, 'c');
    waitForReport(QStringLiteral("Lines on the clipboard: 2"));

    makeFile(QStringLiteral("pasted.txt"));
    const auto editor = desktop().launch(
        QStringLiteral("featherpad"), {QStringLiteral("--standalone"), path(QStringLiteral("pasted.txt"))});
    ASSERT_TRUE(editor);
    const auto program = desktop().application(QStringLiteral("FeatherPad"));
    ASSERT_TRUE(program);
    SCOPED_TRACE(program->describe().toStdString());
    const Accessible page = partOf(*program, QStringLiteral("text"), QString());
    waitForFocus(page);
    screen().press({Key::Control}, 'v');
    waitForText(page, QStringLiteral("a.txt\t1000\nb.txt\t2000"));
    screen().press({Key::Control}, 's');
    EXPECT_TRUE(eventually([this] {
        return contentOf(QStringLiteral("pasted.txt")).trimmed() == "a.txt\t1000\nb.txt\t2000";
    })) << contentOf(QStringLiteral("pasted.txt")).toStdString();
}

} // namespace

} // namespace morvane::test
