// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "host/ApplicationSettings.h"

#include "host/SettingsFixture.h"
#include "support/MessageLog.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

#include <type_traits>
#include <vector>

using morvane::ApplicationSettings;
using morvane::test::MessageLog;

static_assert(!std::is_copy_constructible_v<ApplicationSettings> && !std::is_copy_assignable_v<ApplicationSettings>);
static_assert(std::has_virtual_destructor_v<ApplicationSettings>);

namespace {

class ApplicationSettingsTest : public morvane::test::SettingsFixture
{
protected:
    ~ApplicationSettingsTest() override { EXPECT_TRUE(m_log.entries().empty()); }

    MessageLog m_log;
};

const std::vector<std::string> manyKeys = {"", "plain", "Plain", "PLAIN", "a/b", "a//b", "/a/b", "a/b/", "/", "a\\b",
    "=", "a=b", "a = b", " ", "  ", " a", "a ", "\t", "\n", "a\nb", "\r", "[values]", "[x]", ";comment", "#", "%",
    "%41", "_41", "A", "@ByteArray(x)", "\"", "a\"b", "General/x", "x", ".", "..", "values", "values/x", "a,b",
    "\xC3\xA4", "\xC3\x84", "\xE6\x97\xA5\xE6\x9C\xAC", "\xF0\x9F\x98\x80", "\xFF\xFE", std::string(1, '\0'),
    std::string("a\0b", 3), std::string("a\0c", 3), std::string(5000, 'k'), std::string(5000, 'k') + "l"};

} // namespace

TEST_F(ApplicationSettingsTest, givesAnEmptyArrayForAKeyThatWasNeverStored)
{
    ApplicationSettings settings(m_file);
    EXPECT_TRUE(settings.getByteArrayValue("nothing").isEmpty());
    EXPECT_TRUE(settings.getByteArrayValue("").isEmpty());
    EXPECT_FALSE(QFile::exists(m_file));
}

TEST_F(ApplicationSettingsTest, keepsEveryKindOfKeyApart)
{
    ApplicationSettings settings(m_file);
    for (std::size_t i = 0; i < manyKeys.size(); ++i) {
        settings.depositValue(manyKeys[i], QByteArray::number(static_cast<int>(i)));
    }
    ApplicationSettings other(m_file);
    for (std::size_t i = 0; i < manyKeys.size(); ++i) {
        EXPECT_EQ(settings.getByteArrayValue(manyKeys[i]), QByteArray::number(static_cast<int>(i))) << manyKeys[i];
        EXPECT_EQ(other.getByteArrayValue(manyKeys[i]), QByteArray::number(static_cast<int>(i))) << manyKeys[i];
    }
}

TEST_F(ApplicationSettingsTest, doesNotInventValuesForNeighboursOfAStoredKey)
{
    ApplicationSettings settings(m_file);
    settings.depositValue("a/b", "value");
    for (const char* const neighbour : {"", "a", "b", "a/", "a/b/", "/a/b", "A/B", "a/b/c"}) {
        EXPECT_TRUE(settings.getByteArrayValue(neighbour).isEmpty()) << neighbour;
    }
}

TEST_F(ApplicationSettingsTest, keepsAnyBytes)
{
    QByteArray everyByte;
    for (int i = 0; i < 256; ++i) {
        everyByte.append(static_cast<char>(i));
    }
    const std::vector<QByteArray> values = {everyByte, QByteArray(1, '\0'), QByteArray("\0\0a\0", 4), "a)b)", "\n[x]\n",
        "\\", "\"", "=", "@Variant(x)", " blanks ", "\r\n", QByteArray(4096, '\xFF')};
    for (const QByteArray& value : values) {
        ApplicationSettings(m_file).depositValue("key", value);
        EXPECT_EQ(onDisk("key"), value) << value.left(20).toHex().constData();
    }
}

TEST_F(ApplicationSettingsTest, keepsAMebibyte)
{
    QByteArray value(1 << 20, '\0');
    for (int i = 0; i < value.size(); ++i) {
        value[i] = static_cast<char>((i * 7) ^ (i >> 8));
    }
    ApplicationSettings(m_file).depositValue("big", value);
    EXPECT_EQ(onDisk("big"), value);
}

TEST_F(ApplicationSettingsTest, replacesAValueByAnEmptyOne)
{
    ApplicationSettings settings(m_file);
    settings.depositValue("key", "value");
    settings.depositValue("key", QByteArray());
    EXPECT_TRUE(settings.getByteArrayValue("key").isEmpty());
    EXPECT_TRUE(onDisk("key").isEmpty());
}

TEST_F(ApplicationSettingsTest, hasTheValueOnDiskWhenStoringReturns)
{
    ApplicationSettings settings(m_file);
    settings.depositValue("key", "first");
    QFile::copy(m_file, m_file + QStringLiteral(".copy"));
    EXPECT_EQ(ApplicationSettings(m_file + QStringLiteral(".copy")).getByteArrayValue("key"), "first");
}

TEST_F(ApplicationSettingsTest, sharesOneFileAmongSeveralObjects)
{
    ApplicationSettings one(m_file);
    ApplicationSettings two(m_file);
    for (int i = 0; i < 50; ++i) {
        const QByteArray value = QByteArray::number(100 + i); // of equal length, so that the size never changes
        one.depositValue("one", value);
        EXPECT_EQ(two.getByteArrayValue("one"), value);
        two.depositValue("two", value);
        EXPECT_EQ(one.getByteArrayValue("two"), value);
    }
    EXPECT_EQ(one.getByteArrayValue("one"), "149");
}

TEST_F(ApplicationSettingsTest, seesAFileThatWasExchangedForOneOfTheSameLength)
{
    const QString other = m_directory.filePath(QStringLiteral("other.ini"));
    ApplicationSettings settings(m_file);
    settings.depositValue("key", "aaa");
    ApplicationSettings(other).depositValue("key", "bbb");
    ASSERT_TRUE(QFile::remove(m_file));
    EXPECT_TRUE(settings.getByteArrayValue("key").isEmpty());
    ASSERT_TRUE(QFile::rename(other, m_file));
    EXPECT_EQ(settings.getByteArrayValue("key"), "bbb");
}

TEST_F(ApplicationSettingsTest, leavesTheFileAloneWhenItHoldsTheValueAlready)
{
    ApplicationSettings settings(m_file);
    settings.depositValue("key", "value");
    write(m_file, read(m_file) + "\n\n");
    settings.depositValue("key", "value");
    EXPECT_TRUE(read(m_file).endsWith("\n\n\n"));
    settings.depositValue("key", "other");
    EXPECT_FALSE(read(m_file).endsWith("\n\n"));
    EXPECT_EQ(onDisk("key"), "other");
}

TEST_F(ApplicationSettingsTest, makesTheDirectoriesOnTheWayWithTheFirstValue)
{
    const QString deep = m_directory.filePath(QStringLiteral("a b/\u00E4/c/settings.ini"));
    ApplicationSettings settings(deep);
    EXPECT_FALSE(QFileInfo::exists(m_directory.filePath(QStringLiteral("a b"))));
    settings.depositValue("key", "value");
    EXPECT_EQ(ApplicationSettings(deep).getByteArrayValue("key"), "value");
}

TEST_F(ApplicationSettingsTest, keepsARelativeNameToTheDirectoryItWasMadeIn)
{
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(m_directory.path()));
    ApplicationSettings settings(QStringLiteral("settings.ini"));
    QDir::setCurrent(before);
    settings.depositValue("key", "value");
    EXPECT_EQ(onDisk("key"), "value");
}

TEST_F(ApplicationSettingsTest, leavesNothingBesideTheFile)
{
    ApplicationSettings(m_file).depositValue("key", "value");
    EXPECT_EQ(QDir(m_directory.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
        QStringList{QStringLiteral("settings.ini")});
}

TEST_F(ApplicationSettingsTest, keepsTheValuesOfOthers)
{
    write(m_file, "name=x\n[host]\nname=y\n[values]\n");
    ApplicationSettings settings(m_file);
    settings.depositValue("key", "first");
    settings.depositValue("key", "second");
    const QSettings others(m_file, QSettings::IniFormat);
    EXPECT_EQ(others.value(QStringLiteral("name")), QStringLiteral("x"));
    EXPECT_EQ(others.value(QStringLiteral("host/name")), QStringLiteral("y"));
    EXPECT_EQ(read(m_file).count("[values]"), 1);
    EXPECT_EQ(onDisk("key"), "second");
}

TEST_F(ApplicationSettingsTest, readsLinesThatEndInTheOtherPlatformsWay)
{
    ApplicationSettings(m_file).depositValue("key", "value");
    write(m_file, read(m_file).replace("\n", "\r\n"));
    EXPECT_EQ(onDisk("key"), "value");
}

TEST_F(ApplicationSettingsTest, writesNamesThatDifferByMoreThanCase)
{
    const QByteArray plain = "abcdefghijklmnopqrstuvwxyz0123456789-.";
    std::string key;
    QByteArray name = "_";
    for (int byte = 0; byte < 256; ++byte) {
        const QByteArray character(1, static_cast<char>(byte));
        key += character.toStdString();
        name += plain.contains(character) ? character : '_' + character.toHex();
    }
    ApplicationSettings(m_file).depositValue(key, "value");
    EXPECT_TRUE(read(m_file).contains('\n' + name + '=')) << read(m_file).constData(); // after LF or CR LF
}

TEST_F(ApplicationSettingsTest, hasItsDefaultFileBelowTheConfigurationDirectory)
{
    const QString expected = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
    EXPECT_EQ(ApplicationSettings::defaultFileName(), expected + QStringLiteral("/settings.ini"));
    ApplicationSettings::getInstance().depositValue("key", "value");
    EXPECT_EQ(ApplicationSettings().getByteArrayValue("key"), "value");
    EXPECT_TRUE(QFile::remove(ApplicationSettings::defaultFileName()));
}
