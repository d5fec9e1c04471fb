// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Help pages behind symbolic links. Not on Windows: links need a privilege there, and Qt makes shortcuts instead.
#include "host/HelpLauncherFixture.h"

namespace {

class HelpLauncherLinksTest : public morvane::test::HelpLauncherTest
{
};

} // namespace

TEST_F(HelpLauncherLinksTest, opensAPageThroughALinkInsideTheDirectory)
{
    makePage(QStringLiteral("help/real.html"));
    ASSERT_TRUE(QFile::link(QStringLiteral("real.html"), m_directory.filePath(QStringLiteral("help/alias.html"))));
    expectPage("alias", QStringLiteral("help/real.html"));
}

TEST_F(HelpLauncherLinksTest, worksWithAHelpDirectoryThatIsALinkOrEndsInASlash)
{
    makePage(QStringLiteral("help/open.html"));
    const QString link = m_directory.filePath(QStringLiteral("link"));
    ASSERT_TRUE(QFile::link(QStringLiteral("help"), link));
    m_launcher.setHelpDirectory(link + QLatin1Char('/'));
    EXPECT_EQ(m_launcher.helpDirectory(), link + QLatin1Char('/'));
    expectPage("open", QStringLiteral("help/open.html"));
}

TEST_F(HelpLauncherLinksTest, followsNoLinkOutOfTheHelpDirectory)
{
    makePage(QStringLiteral("secret.html"));
    ASSERT_TRUE(QFile::link(QStringLiteral("../secret.html"), m_directory.filePath(QStringLiteral("help/page.html"))));
    ASSERT_TRUE(QFile::link(QStringLiteral(".."), m_directory.filePath(QStringLiteral("help/up"))));
    ASSERT_TRUE(QFile::link(QStringLiteral("gone.html"), m_directory.filePath(QStringLiteral("help/dangling.html"))));
    ASSERT_TRUE(QFile::link(QStringLiteral("loop.html"), m_directory.filePath(QStringLiteral("help/loop.html"))));
    for (const char* const topic : {"page", "up/secret", "dangling", "loop"}) {
        expectBoxOnly(topic);
    }
}
