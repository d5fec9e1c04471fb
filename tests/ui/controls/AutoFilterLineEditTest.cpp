// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The line edit without a combo box, with a completer whose connections can be counted.
#include "ui/qt/controls/AutoFilterLineEdit_p.h"

#include "support/MessageLog.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

class CountedCompleter : public QCompleter
{
public:
    using QCompleter::QCompleter;

    int connections() const { return receivers(SIGNAL(activated(QString))) + receivers(SIGNAL(highlighted(QString))); }
};

class AutoFilterLineEditTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        auto* const layout = new QHBoxLayout(&window);
        layout->addWidget(&line);
        layout->addWidget(&after);
        line.setCompleter(&completer);
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        line.setFocus();
    }

    QItemSelectionModel& marks() const { return *completer.popup()->selectionModel(); }
    QModelIndex entry(int row) const { return completer.completionModel()->index(row, 0); }

    CountedCompleter completer{QStringList({"Bar", "Bark", "Barn"})};
    QWidget window;
    morvane::ui::AutoFilterLineEdit line;
    QLineEdit after;
};

} // namespace

TEST_F(AutoFilterLineEditTest, returnEnterAndTabEndTheEditingAndKeepTheFocus)
{
    QSignalSpy finished(&line, &QLineEdit::editingFinished);
    int expected = 0;
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab}) {
        QTest::keyClick(&line, key);
        EXPECT_EQ(finished.count(), ++expected) << key;
        EXPECT_TRUE(line.hasFocus()) << key;
    }
}

TEST_F(AutoFilterLineEditTest, tabWithAModifierIsLeftToTheWindow)
{
    QSignalSpy finished(&line, &QLineEdit::editingFinished);
    QTest::keyClick(&line, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(after.hasFocus());
    EXPECT_EQ(finished.count(), 0);
}

TEST_F(AutoFilterLineEditTest, keysLeaveTheCompleterConnectedAsItWas)
{
    QTest::keyClicks(&line, "B");
    ASSERT_TRUE(completer.popup()->isVisible());
    const int before = completer.connections();
    EXPECT_GE(before, 2);
    for (int row = 0; row < 3; ++row) {
        completer.setCurrentRow(row);
        QTest::keyClick(&line, Qt::Key_Shift);
        EXPECT_EQ(marks().currentIndex().row(), row);
        EXPECT_EQ(completer.connections(), before);
    }
}

TEST_F(AutoFilterLineEditTest, aCompleterOrLineThatGoesMeanwhileIsNotConnectedAgain)
{
    const morvane::test::MessageLog log;
    auto otherCompleter = std::make_unique<QCompleter>();
    auto otherLine = std::make_unique<QLineEdit>();
    {
        const morvane::ui::AutoFilterLineEdit::CompleterDetached withoutCompleter(line, *otherCompleter);
        const morvane::ui::AutoFilterLineEdit::CompleterDetached withoutLine(*otherLine, completer);
        otherCompleter.reset();
        otherLine.reset();
    }
    EXPECT_TRUE(log.entries().empty());
}

TEST_F(AutoFilterLineEditTest, takesTheTextThatTheCompleterAnnounces)
{
    QTest::keyClicks(&line, "Ba");
    EXPECT_EQ(line.text(), "Ba");
    Q_EMIT completer.activated(QString("Barn"));
    EXPECT_EQ(line.text(), "Barn");
}

TEST_F(AutoFilterLineEditTest, anEntryThatIsSelectedWithoutBeingCurrentIsMadeCurrent)
{
    QTest::keyClicks(&line, "B");
    completer.setCurrentRow(0);
    marks().select(entry(0), QItemSelectionModel::ClearAndSelect);
    marks().setCurrentIndex(entry(1), QItemSelectionModel::NoUpdate);
    QTest::keyClick(&line, Qt::Key_Shift);
    EXPECT_EQ(marks().currentIndex().row(), 0);
}

TEST_F(AutoFilterLineEditTest, keysWithoutACompleterOrEntriesMarkNothing)
{
    QTest::keyClicks(&line, "x");
    EXPECT_EQ(line.text(), "x");
    completer.setModel(nullptr);
    QTest::keyClicks(&line, "y");
    line.setCompleter(nullptr);
    QTest::keyClicks(&line, "z");
    EXPECT_EQ(line.text(), "xyz");
}
