// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The launcher on the Shell's own dialog, used with the mouse: the first sample of the README, and several files.
#include "ui/qt/dialogs/LaunchFileDialog.h"
#include "ui/qt/dialogs/LaunchFileDialogOptions.h"
#include "windows/Mouse.h"
#include "windows/NativeDialogFixture.h"

#include <gmock/gmock.h>

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace morvane::test;

namespace {

using ::testing::UnorderedElementsAreArray;

const wchar_t* const photo = L"\u5199\u771F \U0001F4F7.csv";

class NativeLauncher : public NativeDialogTest
{
protected:
    using Names = std::vector<std::wstring>;

    void SetUp() override
    {
        NativeDialogTest::SetUp();
        for (const wchar_t* const name : {L"a.dat", L"b b.dat", photo, L"old.txt"}) {
            makeFile(QString::fromWCharArray(name));
        }
    }

    static void pick(const NativeDialog& shown, const Names& names)
    {
        Names picked;
        for (const std::wstring& name : names) {
            EXPECT_TRUE(waitUntil([&] { return shown.lists(name); }));
            shown.clickFile(name, !picked.empty());
            picked.push_back(name);
            EXPECT_TRUE(waitUntil([&] { return holds(shown.name(), picked); }));
        }
    }
    /** Whether the text is the one name, or the several names in quotes and in any order. */
    static bool holds(const std::wstring& text, const Names& names)
    {
        if (names.size() == 1) {
            return text == names.front();
        }
        return std::all_of(names.begin(), names.end(),
            [&text](const std::wstring& name) { return text.find(L'"' + name + L'"') != std::wstring::npos; });
    }
    std::vector<QString> pathsOf(const Names& names) const
    {
        std::vector<QString> paths;
        for (const std::wstring& name : names) {
            paths.push_back(path(QString::fromStdWString(name)));
        }
        return paths;
    }
    bool launch(const Names& selection, bool save, bool several, DialogUser::Script script)
    {
        std::vector<std::string> start;
        for (const QString& file : pathsOf(selection)) {
            start.push_back(file.toStdString());
        }
        const DialogUser user(std::move(script));
        return morvane::ui::LaunchFileDialog(m_files, m_filter, "Launch", {"All (*)"}, start, save, several, 0);
    }
    std::vector<QString> chosen() const
    {
        std::vector<QString> paths;
        for (const std::string& file : m_files) {
            paths.push_back(QString::fromStdString(file));
        }
        return paths;
    }

    std::vector<std::string> m_files;
    int m_filter = -1;
};

class NativeLauncherReadme : public NativeLauncher
{
protected:
    /** What the person does in the dialog, and the files that are listed then. */
    struct Click
    {
        DialogUser::Script act;
        Names listed;
    };

    void clickThrough(const std::vector<Click>& clicks)
    {
        QWidget window;
        auto* const button = new QPushButton(QStringLiteral("&Open"));
        auto* const list = new QListWidget;
        auto* const type = new QLabel;
        // The sample of the README.
#include "OpenFilesSnippet.inc"
        int answered = 0;
        QObject::connect(button, &QPushButton::clicked, &window, [&] { ++answered; });
        auto* const layout = new QVBoxLayout(&window);
        layout->addWidget(button);
        layout->addWidget(list);
        layout->addWidget(type);
        window.setGeometry(1200, 900, 480, 320);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        int made = 0;
        for (const Click& step : clicks) {
            const DialogUser user([&](NativeDialog& shown) {
                if (made == 0) {
                    goToFolder(shown);
                }
                step.act(shown);
            });
            const QPoint middle = button->mapToGlobal(button->rect().center());
            clickAt({middle.x(), middle.y()}, false);
            ASSERT_TRUE(QTest::qWaitFor([&] { return answered == made + 1; }, 60000)) << "click " << made + 1;
            EXPECT_THAT(textsOf(*list), UnorderedElementsAreArray(pathsOf(step.listed))) << "click " << made + 1;
            EXPECT_EQ(type->text(), QStringLiteral("Measurements (*.dat *.csv)"));
            ++made;
        }
    }

private:
    void goToFolder(const NativeDialog& shown) const
    {
        shown.accept(path(QString()).toStdWString());
        EXPECT_TRUE(waitUntil([&] { return shown.lists(L"a.dat") && shown.listedFiles() == 3; }));
    }
    static std::vector<QString> textsOf(const QListWidget& list)
    {
        std::vector<QString> texts;
        for (int row = 0; row < list.count(); ++row) {
            texts.push_back(list.item(row)->text());
        }
        return texts;
    }
};

TEST_F(NativeLauncherReadme, opensAFileTenTimesInARow)
{
    std::vector<Click> clicks;
    for (const wchar_t* const name : {L"b b.dat", photo, L"a.dat", L"b b.dat", L"a.dat"}) {
        clicks.push_back({[name](NativeDialog& shown) {
                              pick(shown, {name});
                              shown.clickOn(NativeDialog::Accept);
                          },
            {name}});
        // The dialog starts with the file that was chosen before.
        clicks.push_back({[name](NativeDialog& shown) {
                              EXPECT_EQ(shown.name(), name);
                              shown.clickOn(NativeDialog::Accept);
                          },
            {name}});
    }
    clickThrough(clicks);
}

TEST_F(NativeLauncherReadme, opensThreeFilesTenTimesInARow)
{
    const Names files{L"a.dat", L"b b.dat", photo};
    const Click three{[files](NativeDialog& shown) {
                          pick(shown, files);
                          shown.clickOn(NativeDialog::Accept);
                      },
        files};
    clickThrough(std::vector<Click>(10, three));
}

TEST_F(NativeLauncher, startsWithSeveralFilesAndOpensThemByTheButtonAlone)
{
    const Names files{L"a.dat", L"b b.dat", photo};
    EXPECT_TRUE(launch(files, false, true, [](NativeDialog& shown) { shown.clickOn(NativeDialog::Accept); }));
    EXPECT_THAT(chosen(), UnorderedElementsAreArray(pathsOf(files)));
}

TEST_F(NativeLauncher, goesOnWhenTheFileHasGoneMeanwhile)
{
    EXPECT_TRUE(launch({L"gone.dat"}, false, true, [](NativeDialog& shown) {
        shown.clickOn(NativeDialog::Accept);
        EXPECT_TRUE(shown.waitForQuestion()) << "the file is not found";
        shown.answer(IDOK);
        EXPECT_TRUE(waitUntil([&] { return !shown.hasQuestion(); }));
        pick(shown, {L"b b.dat"});
        shown.clickOn(NativeDialog::Accept);
    }));
    EXPECT_EQ(chosen(), pathsOf({L"b b.dat"}));
}

TEST_F(NativeLauncher, givesTheFileThatWasPickedToBeSavedWhereSeveralAreAllowed)
{
    for (int time = 0; time < 2; ++time) {
        EXPECT_TRUE(launch({L"a.dat"}, true, true, [](NativeDialog& shown) {
            pick(shown, {L"b b.dat"});
            shown.clickOn(NativeDialog::Accept);
            EXPECT_TRUE(shown.waitForQuestion());
            shown.answer(IDYES);
        }));
        EXPECT_EQ(chosen(), pathsOf({L"b b.dat"}));
    }
}

TEST_F(NativeLauncher, givesSeveralFilesThatWerePickedToBeSaved)
{
    const Names both{L"a.dat", L"b b.dat"};
    EXPECT_TRUE(launch({L"a.dat"}, true, true, [both](NativeDialog& shown) {
        pick(shown, both);
        shown.clickOn(NativeDialog::Accept);
        // One question for each of them.
        EXPECT_TRUE(waitUntil([&] {
            if (shown.hasQuestion()) {
                shown.answer(IDYES);
            }
            return !shown.isOpen();
        }));
    }));
    EXPECT_THAT(chosen(), UnorderedElementsAreArray(pathsOf(both)));
}

} // namespace
