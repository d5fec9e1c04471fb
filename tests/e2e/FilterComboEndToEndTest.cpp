// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "e2e/Eventually.h"
#include "e2e/GallerySession.h"

namespace morvane::test {

namespace {

const QString finished = QStringLiteral("selectionComplete: ");

/** The list contains names of files of this machine, so the tests read the expected names from the screen. */
class FilterComboEndToEnd : public GallerySession
{
protected:
    void SetUp() override
    {
        GallerySession::SetUp();
        openGallery(QStringLiteral("filter-combo"));
        waitForReport(QStringLiteral("file names to choose from"));
    }

    /** The page gives the field the focus and selects its text. */
    Accessible field()
    {
        const Accessible page = part(QStringLiteral("layered pane"), QString());
        Accessible line = partOf(page, QStringLiteral("text"), QString());
        waitForFocus(line);
        return line;
    }

    const QString typed = QStringLiteral("conf");
};

TEST_F(FilterComboEndToEnd, filtersWhileOneTypesAndPicksWithTheMouse)
{
    const Accessible line = field();
    screen().type(typed);
    screen().click(waitForPopup().center());
    const QString picked = waitForReport(finished);
    EXPECT_TRUE(picked.contains(typed, Qt::CaseInsensitive)) << picked.toStdString();
    waitForEnd(line);
    closeGallery();
}

TEST_F(FilterComboEndToEnd, filtersAndPicksWithTheKeyboardAlone)
{
    const Accessible line = field();
    screen().type(typed);
    waitForPopup();
    screen().press(Key::Return);
    const QString first = waitForReport(finished);
    EXPECT_TRUE(first.contains(typed, Qt::CaseInsensitive)) << first.toStdString();
    waitForEnd(line);

    screen().press({Key::Alt}, 'e');
    field();
    screen().type(typed);
    waitForPopup();
    screen().press(Key::Escape);
    waitForReport(QStringLiteral("editingCanceled"));
    closeGallery();
}

TEST_F(FilterComboEndToEnd, picksFromTheWholeListWithTheMouse)
{
    const Accessible line = field();
    // Qt reports the text of a combo box as its accessible name.
    const Accessible box =
        partOf(part(QStringLiteral("layered pane"), QString()), QStringLiteral("combo box"), line.text());
    const QRect arrow = box.rectangle();
    screen().click(QPoint(arrow.right() - arrow.height() / 2, arrow.center().y()));
    const Accessible list = partOf(box, QStringLiteral("list"), QString());
    waitForPopup();
    const Accessible entry = list.child(3);
    const QString name = entry.name();
    ASSERT_FALSE(name.isEmpty());
    click(entry);
    EXPECT_EQ(waitForReport(finished), name);
    closeGallery();
}

} // namespace

} // namespace morvane::test
