// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/Fonts.h"
#include "support/MessageLog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFontDatabase>
#include <QStandardPaths>
#include <QTemporaryDir>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace {

using morvane::test::MessageLog;
using morvane::ui::addFontsToDatabase;
using morvane::ui::addFontToDatabase;
using ::testing::UnorderedElementsAreArray;

const QString warningStart = QStringLiteral("Warning: Failed to load TrueType font from ");

QStringList installedFontFiles()
{
    QStringList files;
    const QStringList directories = QStandardPaths::standardLocations(QStandardPaths::FontsLocation);
    for (const QString& directory : directories) {
        QDirIterator walk(directory, {"*.ttf"}, QDir::Files, QDirIterator::Subdirectories);
        while (walk.hasNext()) {
            files.append(walk.next());
        }
    }
    files.sort();
    return files;
}

/** Families of the application fonts, one entry for each font file. */
QList<QStringList> loadedFonts()
{
    QList<QStringList> fonts;
    for (int id = 0; id < 32; ++id) {
        const QStringList families = QFontDatabase::applicationFontFamilies(id);
        if (!families.isEmpty()) {
            fonts.append(families);
        }
    }
    return fonts;
}

class FontsTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        QFontDatabase::removeAllApplicationFonts();
        if (fonts.size() < 2) {
            GTEST_SKIP() << "this machine has no two TrueType fonts to try with";
        }
    }
    ~FontsTest() override { QFontDatabase::removeAllApplicationFonts(); }

    QString path(const QString& name) const { return directory.filePath(name); }

    std::string write(const QString& name, const QByteArray& content) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QFile::WriteOnly)) << name.toStdString();
        file.write(content);
        return path(name).toStdString();
    }

    std::string copyFont(int number, const QString& name) const
    {
        EXPECT_TRUE(QFile::copy(fonts.at(number), path(name))) << name.toStdString();
        return path(name).toStdString();
    }

    QByteArray fontBytes() const
    {
        QFile file(fonts.first());
        EXPECT_TRUE(file.open(QFile::ReadOnly));
        return file.readAll();
    }

    /** Expects one warning without context for each of these paths, and nothing else in the log. */
    void expectWarningsFor(const QStringList& paths)
    {
        std::vector<std::string> expected;
        for (const QString& failed : paths) {
            expected.push_back((warningStart + failed).toStdString());
        }
        std::vector<std::string> logged;
        for (const MessageLog::Entry& entry : log.entries()) {
            EXPECT_EQ(entry.type, QtWarningMsg);
            EXPECT_FALSE(entry.hasContext);
            logged.push_back(entry.text.toStdString());
        }
        EXPECT_THAT(logged, UnorderedElementsAreArray(expected));
    }

    const QStringList fonts = installedFontFiles();
    const QTemporaryDir directory;
    const MessageLog log;
};

TEST_F(FontsTest, aFontFileIsRegistered)
{
    addFontToDatabase(fonts.first().toStdString());
    EXPECT_EQ(loadedFonts().size(), 1);
    expectWarningsFor({});
}

TEST_F(FontsTest, aNameOutsideAsciiIsRegistered)
{
    addFontToDatabase(copyFont(0, QString::fromUtf8("Schrift-größe-\u65E5\u672C.ttf")));
    EXPECT_EQ(loadedFonts().size(), 1);
    expectWarningsFor({});
}

TEST_F(FontsTest, filesThatAreNoFontsAreWarnedOfOnceEach)
{
    const std::string text = write("notes.txt", "not a font");
    const std::string empty = write("empty.ttf", "");
    const std::string truncated = write("truncated.ttf", fontBytes().left(300));
    addFontToDatabase(text);
    addFontToDatabase(empty);
    addFontToDatabase(truncated);
    EXPECT_TRUE(loadedFonts().isEmpty());
    expectWarningsFor({path("notes.txt"), path("empty.ttf"), path("truncated.ttf")});
}

TEST_F(FontsTest, theWarningHoldsThePathAsItWasGiven)
{
    addFontToDatabase("no/such/../%1 %s größe.ttf");
    expectWarningsFor({QString::fromUtf8("no/such/../%1 %s größe.ttf")});
}

TEST_F(FontsTest, anEmptyPathIsWarnedOf)
{
    addFontToDatabase("");
    // Qt logs a warning of its own, too.
    EXPECT_EQ(log.texts(QtWarningMsg).count(warningStart), 1);
}

TEST_F(FontsTest, aDirectoryIsNoFontFile)
{
    addFontToDatabase(directory.path().toStdString());
    expectWarningsFor({directory.path()});
}

TEST_F(FontsTest, everyFileOfADirectoryIsTriedWhateverItsExtension)
{
    copyFont(0, "first.ttf");
    copyFont(1, "second.dat");
    write("notes.txt", "not a font");
    addFontsToDatabase(directory.path().toStdString());
    EXPECT_EQ(loadedFonts().size(), 2);
    expectWarningsFor({path("notes.txt")});
}

TEST_F(FontsTest, subdirectoriesAndHiddenFilesArePassedOver)
{
    ASSERT_TRUE(QDir(directory.path()).mkdir("deeper"));
    copyFont(0, "deeper/font.ttf");
    write("deeper/notes.txt", "not a font");
    write(".hidden", "not a font");
    addFontsToDatabase(directory.path().toStdString());
    EXPECT_TRUE(loadedFonts().isEmpty());
    expectWarningsFor({});
}

TEST_F(FontsTest, aTrailingSeparatorIsDoubledAndDoesNoHarm)
{
    copyFont(0, "font.ttf");
    write("notes.txt", "not a font");
    addFontsToDatabase(directory.path().toStdString() + QString(QDir::separator()).toStdString());
    EXPECT_EQ(loadedFonts().size(), 1);
    expectWarningsFor({directory.path() + QDir::separator() + QDir::separator() + "notes.txt"});
}

TEST_F(FontsTest, placeMarkersAndForeignLettersInNamesStayAsTheyAre)
{
    const QString name = QString::fromUtf8("50%2 größe %1%3");
    ASSERT_TRUE(QDir(directory.path()).mkdir(name));
    copyFont(0, name + "/%1.ttf");
    write(name + "/%3.txt", "not a font");
    addFontsToDatabase(path(name).toStdString());
    EXPECT_EQ(loadedFonts().size(), 1);
    expectWarningsFor({path(name) + QDir::separator() + "%3.txt"});
}

TEST_F(FontsTest, aDirectoryThatIsMissingOrAFileDoesNothing)
{
    addFontsToDatabase(path("missing").toStdString());
    addFontsToDatabase(write("plain", "not a font"));
    EXPECT_TRUE(loadedFonts().isEmpty());
    expectWarningsFor({});
}

TEST_F(FontsTest, afterAFailureTheNextFilesAreTried)
{
    for (int i = 0; i < 6; ++i) {
        i % 2 == 0 ? write(QString::number(i), "not a font") : copyFont(0, QString::number(i));
    }
    addFontsToDatabase(directory.path().toStdString());
    EXPECT_EQ(loadedFonts().size(), 3);
    expectWarningsFor({path("0"), path("2"), path("4")});
}

#ifdef Q_OS_UNIX

/** Drops the rights of the superuser, for whom file permissions have no effect. */
class UnprivilegedUser
{
public:
    UnprivilegedUser() { m_changed = m_user == 0 && seteuid(65534) == 0; }
    ~UnprivilegedUser()
    {
        if (m_changed && seteuid(m_user) != 0) {
            ADD_FAILURE() << "cannot become the old user again";
        }
    }
    bool isUnprivileged() const { return geteuid() != 0; }

private:
    uid_t m_user = geteuid();
    bool m_changed = false;
};

TEST_F(FontsTest, aFileThatCannotBeReadIsWarnedOf)
{
    const std::string locked = copyFont(0, "locked.ttf");
    QFile::setPermissions(path("locked.ttf"), {});
    QFile::setPermissions(directory.path(), QFile::Permissions(0x7755));
    {
        const UnprivilegedUser user;
        ASSERT_TRUE(user.isUnprivileged());
        addFontToDatabase(locked);
    }
    EXPECT_TRUE(loadedFonts().isEmpty());
    expectWarningsFor({path("locked.ttf")});
}

TEST_F(FontsTest, aDirectoryThatCannotBeReadDoesNothing)
{
    copyFont(0, "font.ttf");
    write("notes.txt", "not a font");
    QFile::setPermissions(directory.path(), {});
    {
        const UnprivilegedUser user;
        ASSERT_TRUE(user.isUnprivileged());
        addFontsToDatabase(directory.path().toStdString());
    }
    QFile::setPermissions(directory.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_TRUE(loadedFonts().isEmpty());
    expectWarningsFor({});
}

#endif

} // namespace
