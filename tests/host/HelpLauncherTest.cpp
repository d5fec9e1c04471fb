// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "host/HelpLauncherFixture.h"
#include "support/DiskNames.h"
#include "support/MessageLog.h"

#include <QApplication>
#include <QPointer>

#include <memory>
#include <type_traits>
#include <vector>

using morvane::HelpLauncher;
using morvane::test::HelpLauncherTest;
using morvane::test::MessageLog;
using morvane::test::ModalScript;

static_assert(!std::is_copy_constructible_v<HelpLauncher> && !std::is_copy_assignable_v<HelpLauncher>);
static_assert(std::has_virtual_destructor_v<HelpLauncher>);

TEST_F(HelpLauncherTest, opensThePageOfATopic)
{
    makePage(QStringLiteral("help/open.html"));
    expectPage("open", QStringLiteral("help/open.html"));
}

TEST_F(HelpLauncherTest, opensAPageInASubDirectory)
{
    makePage(QStringLiteral("help/dialogs/open.html"));
    makePage(QStringLiteral("help/index.html"));
    expectPage("dialogs/open", QStringLiteral("help/dialogs/open.html"));
    expectPage("dialogs/../index", QStringLiteral("help/index.html"));
}

TEST_F(HelpLauncherTest, opensPagesWhoseNamesNeedEscapesInAnAddress)
{
    const QStringList topics{"two words", "a#b", "100%", "%41", "a?b=c", "\xC3\xA4\xE6\x97\xA5", "a&b", ".hidden",
        "a.b", "a+b", "\xF0\x9F\x98\x80", "'\"", "'", "%1"};
    for (const QString& topic : morvane::test::namesForDisk(topics)) {
        const QString page = QStringLiteral("help/") + topic + QStringLiteral(".html");
        makePage(page);
        expectPage(topic.toStdString(), page);
    }
}

TEST_F(HelpLauncherTest, worksWithAHelpDirectoryThatEndsInASlash)
{
    makePage(QStringLiteral("help/open.html"));
    m_launcher.setHelpDirectory(m_directory.filePath(QStringLiteral("help/")));
    expectPage("open", QStringLiteral("help/open.html"));
}

TEST_F(HelpLauncherTest, namesTheTopicInABoxWhenThereIsNoPage)
{
    expectBoxOnly("missing");
    expectBoxOnly("dialogs");
}

TEST_F(HelpLauncherTest, namesTheTopicInABoxWhenNoFileCanHaveItsName)
{
    for (const char* const topic : {"a?b=c", "a*", "say \"a\"", "a|b", "<a>", "a:b", "a\tb", "NUL"}) {
        expectBoxOnly(topic);
    }
}

TEST_F(HelpLauncherTest, namesTopicsAsPlainText)
{
    for (const char* const topic : {"<b>bold</b>", "<img src='file:///etc/passwd'>", "&amp;", "%1 %2", "a\nb", ""}) {
        expectBoxOnly(topic);
    }
}

TEST_F(HelpLauncherTest, showsInvalidUtf8WithReplacementCharacters)
{
    EXPECT_TRUE(textOfBox("a\xFFz").contains(QStringLiteral("a\uFFFDz")));
}

TEST_F(HelpLauncherTest, treatsADirectoryWithThePagesNameAsNoPage)
{
    QDir(m_directory.path()).mkpath(QStringLiteral("help/folder.html"));
    expectBoxOnly("folder");
}

TEST_F(HelpLauncherTest, opensNothingOutsideTheHelpDirectory)
{
    makePage(QStringLiteral("secret.html"));
    makePage(QStringLiteral("help-of-others/secret.html"));
    const QString absolute = m_directory.filePath(QStringLiteral("secret"));
    for (const QString& topic : {QStringLiteral("../secret"), QStringLiteral("dialogs/../../secret"),
             QStringLiteral("./../secret"), QStringLiteral("../help-of-others/secret"), absolute,
             QStringLiteral("file://") + absolute, QStringLiteral("/") + absolute, QStringLiteral("..")}) {
        expectBoxOnly(topic.toStdString());
    }
}

TEST_F(HelpLauncherTest, opensNothingOutsideThroughBackslashesOrDrives)
{
    makePage(QStringLiteral("secret.html"));
    const QString absolute = QDir::toNativeSeparators(m_directory.filePath(QStringLiteral("secret")));
    for (const QString& topic : {QStringLiteral("..\\secret"), QStringLiteral("dialogs\\..\\..\\secret"), absolute,
             QStringLiteral("C:secret"), QStringLiteral("C:..\\secret"), QStringLiteral("\\\\?\\") + absolute}) {
        expectBoxOnly(topic.toStdString());
    }
}

TEST_F(HelpLauncherTest, opensNotEvenAnAbsolutePathInsideTheHelpDirectory)
{
    makePage(QStringLiteral("help/open.html"));
    expectBoxOnly(m_directory.filePath(QStringLiteral("help/open")).toStdString());
}

TEST_F(HelpLauncherTest, doesNotCutATopicAtANul)
{
    makePage(QStringLiteral("help/open.html"));
    makePage(QStringLiteral("help/.html"));
    for (const std::string& topic : {std::string("open.html\0", 10), std::string("open\0x", 6), std::string(1, '\0')}) {
        EXPECT_FALSE(textOfBox(topic).isEmpty());
    }
    EXPECT_TRUE(m_browser.opened.isEmpty());
}

TEST_F(HelpLauncherTest, hasNoPageForTheEmptyTopic)
{
    makePage(QStringLiteral("help/.html"));
    expectBoxOnly("");
}

TEST_F(HelpLauncherTest, hasNoPagesWithoutAHelpDirectory)
{
    EXPECT_TRUE(HelpLauncher().helpDirectory().isEmpty());
    makePage(QStringLiteral("open.html"));
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(m_directory.path()));
    m_launcher.setHelpDirectory(QString());
    expectBoxOnly("open");
    m_launcher.setHelpDirectory(m_directory.filePath(QStringLiteral("missing")));
    expectBoxOnly("open");
    m_launcher.setHelpDirectory(m_directory.filePath(QStringLiteral("open.html")));
    expectBoxOnly("open");
    QDir::setCurrent(before);
}

TEST_F(HelpLauncherTest, namesTheTopicInABoxWhenTheBrowserFails)
{
    makePage(QStringLiteral("help/open.html"));
    QObject withoutSlot;
    QDesktopServices::setUrlHandler(QStringLiteral("file"), &withoutSlot, "noSuchSlot");
    const MessageLog log;
    EXPECT_TRUE(textOfBox("open").contains(QStringLiteral("open")));
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    EXPECT_TRUE(textOfBox("open").contains(QStringLiteral("open"))); // the offscreen desktop has no browser
}

TEST_F(HelpLauncherTest, hasItsBoxOverTheActiveWindowAndRemovesItAfterwards)
{
    QWidget window;
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QPointer<QMessageBox> box;
    ModalScript user;
    user.on<QMessageBox>([&](QMessageBox& shown) {
        box = &shown;
        EXPECT_EQ(shown.parentWidget(), &window);
        QTest::keyClick(&shown, Qt::Key_Escape);
    });
    m_launcher.showHelp("missing");
    EXPECT_TRUE(user.finished());
    EXPECT_TRUE(box.isNull());
}

TEST_F(HelpLauncherTest, survivesTheEndOfTheWindowUnderTheBox)
{
    auto window = std::make_unique<QWidget>();
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    ModalScript user;
    user.on<QMessageBox>([&](QMessageBox& box) {
        ASSERT_EQ(box.parentWidget(), window.get());
        window.reset();
    });
    m_launcher.showHelp("missing");
    EXPECT_TRUE(user.finished());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}
