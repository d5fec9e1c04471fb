// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/ComboBoxAutoFilter.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

namespace {

using morvane::ui::ComboBoxAutoFilter;

class ComboBoxFiltering : public ::testing::Test
{
protected:
    ComboBoxFiltering() { box.setList({"Bar", "Car", "Dog"}); }

    ComboBoxAutoFilter box{nullptr};
};

TEST_F(ComboBoxFiltering, isOffAtFirst)
{
    EXPECT_FALSE(box.isFiltering());
    EXPECT_FALSE(box.isEditable());
}

TEST_F(ComboBoxFiltering, keepsTheEntriesThatContainTheTextWhateverItsCase)
{
    box.setFiltering(true);
    EXPECT_TRUE(box.isFiltering());
    ASSERT_TRUE(box.completer());
    EXPECT_EQ(box.completer()->completionMode(), QCompleter::PopupCompletion);
    box.completer()->setCompletionPrefix("AR");
    EXPECT_EQ(box.completer()->completionCount(), 2);
}

TEST_F(ComboBoxFiltering, isOnAfterTheOtherWaysOfSettingItUp)
{
    box.setCompleterAttributes(
        true, QCompleter::InlineCompletion, Qt::CaseSensitive, Qt::ElideRight, Qt::MatchContains);
    const QCompleter* const completer = box.completer();
    EXPECT_TRUE(box.isFiltering());
    box.setFiltering(true);
    EXPECT_EQ(box.completer(), completer) << "what was set up stays";
    EXPECT_EQ(box.completer()->completionMode(), QCompleter::InlineCompletion);
}

TEST_F(ComboBoxFiltering, leavesAPlainComboBoxWhenItIsSwitchedOff)
{
    box.setFiltering(true);
    box.setCurrentIndex(1);
    box.setFiltering(false);
    EXPECT_FALSE(box.isFiltering());
    EXPECT_FALSE(box.isEditable());
    EXPECT_EQ(box.count(), 3);
    EXPECT_EQ(box.currentText(), "Car");
    box.setFiltering(false);
    QTest::keyClick(&box, Qt::Key_Down);
    EXPECT_EQ(box.currentText(), "Dog");
}

TEST_F(ComboBoxFiltering, canBeSwitchedOnAgain)
{
    box.setFiltering(true);
    box.setFiltering(false);
    box.setFiltering(true);
    box.show();
    QSignalSpy done(&box, &ComboBoxAutoFilter::selectionComplete);
    box.lineEdit()->selectAll();
    QTest::keyClicks(&box, "do");
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(box.currentText(), "Dog");
    EXPECT_EQ(done.size(), 1);
}

} // namespace
