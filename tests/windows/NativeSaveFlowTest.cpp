// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The save flow on the Shell's own dialog: its questions, the probe, the extension, names beyond the basic plane.
#include "support/ModalScript.h"
#include "ui/qt/dialogs/ExtendedFileDialog.h"
#include "ui/qt/dialogs/SaveFileDialog.h"
#include "windows/DialogUser.h"
#include "windows/ExclusiveFile.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>

using namespace morvane::test;

namespace {

class NativeSaveFlow : public testing::Test
{
protected:
    using Scripts = std::vector<DialogUser::Script>;

    void SetUp() override
    {
        ASSERT_TRUE(m_directory.isValid());
        ASSERT_TRUE(ExtendedFileDialog::useNativeFileDialog());
        m_window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_window));
    }

    /** In the form in which the flow reports names. */
    QString path(const QString& name) const { return m_directory.filePath(name); }
    /** A name that the extension rule leaves alone keeps the Shell's form. */
    QString unchanged(const QString& name) const { return QDir::toNativeSeparators(path(name)); }
    QStringList entries() const { return QDir(m_directory.path()).entryList(QDir::Files); }

    void write(const QString& file, const QByteArray& content) const
    {
        QFile writer(file);
        ASSERT_TRUE(writer.open(QIODevice::WriteOnly));
        ASSERT_EQ(writer.write(content), content.size());
    }
    QByteArray contentOf(const QString& name) const
    {
        QFile reader(path(name));
        return reader.open(QIODevice::ReadOnly) ? reader.readAll() : QByteArray("unreadable");
    }

    // The Shell adds the extension of a pattern by itself. With these types, only our rule adds an extension.
    std::unique_ptr<SaveFileDialog> makeFlow(
        const std::vector<std::string>& writers = {"Data v1.dat (*)", "Table v1.csv (*)"}, int selected = 0)
    {
        return std::make_unique<SaveFileDialog>(
            &m_window, "Save", m_directory.path().toStdString(), "", writers, selected, "");
    }

    /** The user answers the questions with the keys while the scripts serve the dialogs. */
    static bool launch(
        SaveFileDialog& flow, Scripts scripts, const std::vector<Qt::Key>& keys, QStringList* texts = nullptr)
    {
        const DialogUser user(std::move(scripts));
        ModalScript answers;
        for (const Qt::Key key : keys) {
            answers.on<QMessageBox>([key, texts](QMessageBox& box) {
                if (texts) {
                    texts->append(box.text());
                }
                answer(box, key);
            });
        }
        const bool result = flow.launch();
        EXPECT_TRUE(answers.finished()) << "a question was not asked";
        return result;
    }

    static void answer(QMessageBox& box, Qt::Key key)
    {
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Save"));
        const QPointer<QMessageBox> open(&box);
        QTest::keyClick(box.focusWidget() ? box.focusWidget() : &box, key);
        // The button is shown pressed for a moment first. Waits, so that this box is not taken for the next question.
        EXPECT_TRUE(QTest::qWaitFor([&] { return !open || !open->isVisible(); }));
    }

    static DialogUser::Script typing(const QString& name)
    {
        return [name](NativeDialog& shown) { shown.accept(name.toStdWString()); };
    }

    QTemporaryDir m_directory{QDir::tempPath() + u'/' + QStringLiteral(u"保存 \U0001F4BE XXXXXX")};
    QWidget m_window;
};

TEST_F(NativeSaveFlow, newNameGetsTheExtensionOfItsTypeAndIsProbed)
{
    const auto flow = makeFlow();
    EXPECT_TRUE(launch(*flow, {typing(QStringLiteral("report"))}, {}));
    EXPECT_EQ(flow->selectedFilename(), path(QStringLiteral("report.dat")).toStdString());
    EXPECT_EQ(flow->selectedWriter(), 0);
    EXPECT_TRUE(entries().isEmpty()) << "the probe leaves nothing behind";
}

TEST_F(NativeSaveFlow, extensionFollowsTheTypeThatTheUserTakes)
{
    const auto flow = makeFlow();
    const auto table = [](NativeDialog& shown) {
        shown.setName(L"report");
        shown.chooseType(1);
        shown.accept();
    };
    EXPECT_TRUE(launch(*flow, {table}, {}));
    EXPECT_EQ(flow->selectedFilename(), path(QStringLiteral("report.csv")).toStdString());
    EXPECT_EQ(flow->selectedWriter(), 1);
    EXPECT_EQ(flow->selectedFilter(), "Table v1.csv (*)");
}

TEST_F(NativeSaveFlow, typedExtensionFollowsTheTypeBothWays)
{
    const auto flow = makeFlow({"Text (*.txt)", "Table (*.csv)"}, 1);
    const auto back = [](NativeDialog& shown) {
        EXPECT_EQ(shown.typeIndex(), 1);
        shown.setName(L"表.csv");
        shown.chooseType(0);
        EXPECT_EQ(shown.name(), L"表.txt");
        shown.chooseType(1);
        EXPECT_EQ(shown.name(), L"表.csv");
        shown.accept();
    };
    EXPECT_TRUE(launch(*flow, {back}, {}));
    EXPECT_EQ(flow->selectedFilename(), unchanged(QStringLiteral(u"表.csv")).toStdString());
    EXPECT_EQ(flow->selectedWriter(), 1);
}

TEST_F(NativeSaveFlow, noShowsTheDialogAgainAndYesReplaces)
{
    write(path(QStringLiteral("old.dat")), "old content");
    const auto flow = makeFlow();
    const auto again = [](NativeDialog& shown) {
        EXPECT_EQ(shown.title(), L"Save");
        shown.accept(L"old");
    };
    QStringList texts;
    const bool saved = launch(*flow, {typing(QStringLiteral("old")), again}, {Qt::Key_Return, Qt::Key_Y}, &texts);
    EXPECT_TRUE(saved);
    const QString old = path(QStringLiteral("old.dat"));
    const QString question = QStringLiteral("File %1 already exists. Do you want to replace it?").arg(old);
    EXPECT_EQ(texts, QStringList({question, question}));
    EXPECT_EQ(flow->selectedFilename(), old.toStdString());
    EXPECT_EQ(contentOf(QStringLiteral("old.dat")), "old content") << "replacing is the host's part";
}

TEST_F(NativeSaveFlow, noBringsTheDialogBackAsTheUserLeftIt)
{
    ASSERT_TRUE(QDir(m_directory.path()).mkdir(QStringLiteral("inner")));
    write(path(QStringLiteral("inner/old.csv")), "old content");
    write(path(QStringLiteral("inner/mark.csv")), "so that there are two files");
    for (const wchar_t* const name : {L"old", L"old.csv"}) {
        const auto flow = makeFlow();
        const auto leave = [name](NativeDialog& shown) {
            shown.accept(L"inner");
            EXPECT_TRUE(waitUntil([&shown] { return shown.listedFiles() == 2; }));
            shown.chooseType(1);
            shown.setName(name);
            shown.accept();
        };
        const auto comeBack = [name](NativeDialog& shown) {
            EXPECT_EQ(shown.name(), name);
            EXPECT_EQ(shown.typeIndex(), 1);
            EXPECT_TRUE(waitUntil([&shown] { return shown.listedFiles() == 2; }));
            shown.accept(L"new");
        };
        EXPECT_TRUE(launch(*flow, {leave, comeBack}, {Qt::Key_N}));
        EXPECT_EQ(flow->selectedFilename(), path(QStringLiteral("inner/new.csv")).toStdString());
    }
}

TEST_F(NativeSaveFlow, refusedPlaceIsToldAndAnotherIsAskedFor)
{
    const QString locked = QStringLiteral(u"閉 \U0001F512.dat");
    write(path(locked), "locked");
    const ExclusiveFile holder(QDir::toNativeSeparators(path(locked)).toStdWString());
    ASSERT_TRUE(holder.isOpen());
    const auto flow = makeFlow();
    QStringList texts;
    const bool saved = launch(*flow, {typing(locked), typing(QStringLiteral("free"))}, {Qt::Key_Y, Qt::Key_Y}, &texts);
    EXPECT_TRUE(saved);
    EXPECT_EQ(texts.value(1),
        QStringLiteral("Unable to save file %1, check access permissions for the file and the parent directory. Do you "
                       "want to try again and choose a different location?")
            .arg(unchanged(locked)));
    EXPECT_EQ(flow->selectedFilename(), path(QStringLiteral("free.dat")).toStdString());
}

TEST_F(NativeSaveFlow, refusedPlaceEndsTheFlowOnNo)
{
    write(path(QStringLiteral("locked.dat")), "locked");
    const ExclusiveFile holder(QDir::toNativeSeparators(path(QStringLiteral("locked.dat"))).toStdWString());
    const auto flow = makeFlow();
    EXPECT_FALSE(launch(*flow, {typing(QStringLiteral("locked.dat"))}, {Qt::Key_Y, Qt::Key_Escape}));
    EXPECT_EQ(entries(), QStringList(QStringLiteral("locked.dat")));
}

TEST_F(NativeSaveFlow, cancelEndsTheFlow)
{
    const auto flow = makeFlow();
    EXPECT_FALSE(launch(*flow, {[](NativeDialog& shown) { shown.cancel(); }}, {}));
    EXPECT_EQ(flow->selectedFilename(), "");
}

class NativeSaveFlowNames : public NativeSaveFlow, public testing::WithParamInterface<const char16_t*>
{
};

TEST_P(NativeSaveFlowNames, areSavedThenProbedAndOverwritten)
{
    const QString name = QString::fromUtf16(GetParam());
    const QString file = name + QStringLiteral(".dat");
    const auto first = makeFlow();
    ASSERT_TRUE(launch(*first, {typing(name)}, {}));
    ASSERT_EQ(first->selectedFilename(), path(file).toStdString());
    EXPECT_TRUE(entries().isEmpty());
    write(QString::fromStdString(first->selectedFilename()), "first");
    EXPECT_EQ(entries(), QStringList(file));

    const auto second = makeFlow();
    ASSERT_TRUE(launch(*second, {typing(name)}, {Qt::Key_Y}));
    EXPECT_EQ(second->selectedFilename(), path(file).toStdString());
    EXPECT_EQ(contentOf(file), "first") << "the probe keeps what it opens";
    write(QString::fromStdString(second->selectedFilename()), "second");
    EXPECT_EQ(entries(), QStringList(file));
    EXPECT_EQ(contentOf(file), "second");
}

std::string labelOf(const testing::TestParamInfo<const char16_t*>& tested)
{
    const char* const labels[] = {"japanese", "emoji", "accents", "blanks"};
    return labels[tested.index];
}

INSTANTIATE_TEST_SUITE_P(, NativeSaveFlowNames,
    testing::Values(u"日本語 の 名前", u"\U0001F600 smile \U0001F4C8", u"Größe é", u"a  b"), labelOf);

} // namespace
