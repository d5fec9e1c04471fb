#include "host/HelpLauncher.h"

#include "support/MessageLog.h"
#include "support/ModalScript.h"

#include <gtest/gtest.h>

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include <memory>
#include <type_traits>
#include <vector>

using morvane::HelpLauncher;
using morvane::test::MessageLog;
using morvane::test::ModalScript;

static_assert(!std::is_copy_constructible_v<HelpLauncher> && !std::is_copy_assignable_v<HelpLauncher>);
static_assert(std::has_virtual_destructor_v<HelpLauncher>);

namespace {

/** Stands in for the desktop's browser. */
class Browser : public QObject
{
    Q_OBJECT

public:
    Browser() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

    QList<QUrl> opened;

public Q_SLOTS:
    void open(const QUrl& url) { opened.append(url); }
};

class HelpLauncherTest : public ::testing::Test
{
protected:
    HelpLauncherTest()
    {
        QDir(m_directory.path()).mkpath(QStringLiteral("help/dialogs"));
        QDir(m_directory.path()).mkpath(QStringLiteral("help-of-others"));
        m_launcher.setHelpDirectory(m_directory.filePath(QStringLiteral("help")));
    }

    void makePage(const QString& relativePath)
    {
        QFile page(m_directory.filePath(relativePath));
        ASSERT_TRUE(page.open(QIODevice::WriteOnly)) << relativePath.toStdString();
    }

    /** Shows the topic and returns the text of the box that it brings; the box is dismissed with Return. */
    QString textOfBox(const std::string& topic)
    {
        QString text;
        ModalScript user;
        user.on<QMessageBox>([&text](QMessageBox& box) {
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            text = box.text();
            QTest::keyClick(&box, Qt::Key_Return);
        });
        m_launcher.showHelp(topic);
        EXPECT_TRUE(user.finished()) << topic;
        return text;
    }

    void expectBoxOnly(const std::string& topic)
    {
        const QString text = textOfBox(topic);
        EXPECT_TRUE(text.contains(QString::fromStdString(topic))) << text.toStdString();
        EXPECT_TRUE(m_browser.opened.isEmpty())
            << topic << " opened " << m_browser.opened.value(0).toString().toStdString();
    }

    void expectPage(const std::string& topic, const QString& relativePath)
    {
        m_browser.opened.clear();
        m_launcher.showHelp(topic);
        ASSERT_EQ(m_browser.opened.size(), 1) << topic;
        EXPECT_TRUE(m_browser.opened.first().isLocalFile());
        EXPECT_EQ(m_browser.opened.first().toLocalFile(),
            QDir(m_directory.path()).canonicalPath() + QLatin1Char('/') + relativePath);
    }

    const QTemporaryDir m_directory;
    HelpLauncher m_launcher;
    Browser m_browser;
};

} // namespace

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
    const char* const topics[] = {"two words", "a#b", "100%", "%41", "a?b=c", "\xC3\xA4\xE6\x97\xA5", "a&b", ".hidden",
        "a.b", "a+b", "\xF0\x9F\x98\x80", "'\"", "%1"};
    for (const char* const topic : topics) {
        const QString page = QStringLiteral("help/") + QString::fromUtf8(topic) + QStringLiteral(".html");
        makePage(page);
        expectPage(topic, page);
    }
}

TEST_F(HelpLauncherTest, opensAPageThroughALinkInsideTheDirectory)
{
    makePage(QStringLiteral("help/real.html"));
    ASSERT_TRUE(QFile::link(QStringLiteral("real.html"), m_directory.filePath(QStringLiteral("help/alias.html"))));
    expectPage("alias", QStringLiteral("help/real.html"));
}

TEST_F(HelpLauncherTest, worksWithAHelpDirectoryThatIsALinkOrEndsInASlash)
{
    makePage(QStringLiteral("help/open.html"));
    const QString link = m_directory.filePath(QStringLiteral("link"));
    ASSERT_TRUE(QFile::link(QStringLiteral("help"), link));
    m_launcher.setHelpDirectory(link + QLatin1Char('/'));
    EXPECT_EQ(m_launcher.helpDirectory(), link + QLatin1Char('/'));
    expectPage("open", QStringLiteral("help/open.html"));
}

TEST_F(HelpLauncherTest, namesTheTopicInABoxWhenThereIsNoPage)
{
    expectBoxOnly("missing");
    expectBoxOnly("dialogs");
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

TEST_F(HelpLauncherTest, opensNotEvenAnAbsolutePathInsideTheHelpDirectory)
{
    makePage(QStringLiteral("help/open.html"));
    expectBoxOnly(m_directory.filePath(QStringLiteral("help/open")).toStdString());
}

TEST_F(HelpLauncherTest, followsNoLinkOutOfTheHelpDirectory)
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

#include "HelpLauncherTest.moc"
