// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Questions answered by a script, asked by the save flow and by a host.
#include "testing/QuestionScript.h"

#include "support/DiskNames.h"
#include "support/QtPrinters.h"
#include "testing/RecordingDialog.h"
#include "testing/RecordingShell.h"
#include "ui/qt/dialogs/SaveFileQtDialog.h"
#include "ui/qt/dialogs/SaveFileWinDialog.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QWindow>

namespace morvane::test {

namespace {

const QString overwriteText = QStringLiteral("already exists");
const QString elsewhere = QStringLiteral("Unable to save");

class QuestionScriptTest : public ::testing::Test
{
protected:
    QuestionScriptTest()
    {
        QFile file(m_folder.filePath(QStringLiteral("old.dat")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        m_shell.script.duringShow = [this](RecordingDialog& dialog) {
            if (m_names.isEmpty()) {
                return;
            }
            dialog.userTypesName(m_names.takeFirst());
            dialog.userAccepts();
        };
    }

    QTemporaryDir m_folder;
    const QString refused = refusedPath(m_folder.path(), QStringLiteral("none"));
    QStringList m_names;
    RecordingShell m_shell;
    ui::ShellOverride m_guard{m_shell};
    QPointer<QWidget> m_window = new QWidget;
    SaveFileWinDialog m_flow{m_window, "Save", m_folder.path().toStdString(), "", "Data (*.dat)", ""};
};

TEST_F(QuestionScriptTest, answersTheQuestionsOfTheSaveFlowInOrder)
{
    m_names = QStringList({QStringLiteral("old"), refused, QStringLiteral("old")});
    QuestionScript user;
    user.answers(overwriteText, QMessageBox::No);
    user.answers(elsewhere, QMessageBox::Yes);
    user.answers(overwriteText, QMessageBox::Yes);
    EXPECT_TRUE(m_flow.launch());
    EXPECT_TRUE(user.isFinished());
    EXPECT_EQ(m_flow.selectedFilename(), m_folder.filePath(QStringLiteral("old.dat")).toStdString());
    EXPECT_EQ(user.asked().size(), 3);
    EXPECT_TRUE(user.asked().at(0).endsWith(QStringLiteral("old.dat already exists. Do you want to replace it?")));
}

TEST_F(QuestionScriptTest, givesUpWhereTheScriptSaysNo)
{
    m_names = QStringList(refused);
    QuestionScript user;
    user.answers(elsewhere, QMessageBox::No);
    EXPECT_FALSE(m_flow.launch());
    EXPECT_TRUE(user.isFinished());
}

TEST_F(QuestionScriptTest, closesAQuestionThatIsNotInTheScript)
{
    m_names = QStringList(QStringLiteral("old"));
    QuestionScript user;
    EXPECT_FALSE(m_flow.launch()) << "No, and then the dialog is cancelled";
    EXPECT_FALSE(user.isFinished());
    EXPECT_EQ(user.asked().size(), 1);
}

TEST_F(QuestionScriptTest, closesAQuestionThatIsNotTheNextOne)
{
    m_names = QStringList({QStringLiteral("old"), refused});
    QuestionScript user;
    user.answers(elsewhere, QMessageBox::Yes);
    EXPECT_FALSE(m_flow.launch());
    EXPECT_FALSE(user.isFinished());
    EXPECT_EQ(user.asked().size(), 2);
}

TEST_F(QuestionScriptTest, isNotFinishedWhileAnAnswerIsLeft)
{
    QuestionScript user;
    user.answers(overwriteText, QMessageBox::Yes);
    m_names = QStringList(QStringLiteral("new"));
    EXPECT_TRUE(m_flow.launch());
    EXPECT_FALSE(user.isFinished());
}

TEST_F(QuestionScriptTest, survivesTheParentOfAQuestion)
{
    m_names = QStringList(QStringLiteral("old"));
    QuestionScript user;
    user.answers(overwriteText, QMessageBox::Yes);
    QTimer::singleShot(0, [this] { delete m_window; });
    EXPECT_FALSE(m_flow.launch());
    EXPECT_TRUE(user.isFinished());
}

TEST_F(QuestionScriptTest, answersTheQuestionsOfAHostWithoutAWindow)
{
    QuestionScript user;
    user.answers(QStringLiteral("Really"), QMessageBox::Discard).answers(QString(), QMessageBox::Ok);
    QMessageBox box(QMessageBox::Warning, QString(), QStringLiteral("Really close?"),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    bool wasVisible = true;
    QObject::connect(
        box.button(QMessageBox::Discard), &QPushButton::clicked, [&] { wasVisible = box.windowHandle()->isVisible(); });
    EXPECT_EQ(box.exec(), QMessageBox::Discard);
    EXPECT_FALSE(wasVisible);
    EXPECT_EQ(QMessageBox::information(m_window, QString(), QStringLiteral("Done")), QMessageBox::Ok);
    EXPECT_TRUE(user.isFinished());
}

TEST_F(QuestionScriptTest, endsABoxWithoutTheButtonAndWithoutEscape)
{
    QuestionScript user;
    user.answers(QString(), QMessageBox::Yes);
    QMessageBox box(QMessageBox::Question, QString(), QStringLiteral("Which?"));
    QPushButton* const first = box.addButton(QStringLiteral("First"), QMessageBox::ActionRole);
    box.addButton(QStringLiteral("Second"), QMessageBox::ActionRole);
    box.exec();
    EXPECT_EQ(box.clickedButton(), first);
    EXPECT_FALSE(user.isFinished());
}

TEST_F(QuestionScriptTest, endsABoxWhoseButtonIsDisabled)
{
    QuestionScript user;
    user.answers(QString(), QMessageBox::Ok);
    QMessageBox box(QMessageBox::Question, QString(), QStringLiteral("Which?"), QMessageBox::Ok | QMessageBox::Cancel);
    box.button(QMessageBox::Ok)->setEnabled(false);
    EXPECT_EQ(box.exec(), QMessageBox::Cancel);
    EXPECT_FALSE(user.isFinished());
}

TEST_F(QuestionScriptTest, endsABoxWithoutAnyUsableButton)
{
    QuestionScript user;
    QMessageBox box(
        QMessageBox::Question, QString(), QStringLiteral("Which?"), QMessageBox::Yes | QMessageBox::YesToAll);
    for (QAbstractButton* const button : box.buttons()) {
        button->setEnabled(false);
    }
    box.exec();
    EXPECT_FALSE(user.isFinished());
}

TEST_F(QuestionScriptTest, leavesBoxesAloneOnceItIsGone)
{
    {
        QuestionScript user;
    }
    QMessageBox box(QMessageBox::Question, QString(), QStringLiteral("Which?"), QMessageBox::Ok);
    QTimer::singleShot(0, &box, [&box] {
        EXPECT_TRUE(box.windowHandle()->isVisible());
        box.done(7);
    });
    EXPECT_EQ(box.exec(), 7);
}

} // namespace

} // namespace morvane::test
