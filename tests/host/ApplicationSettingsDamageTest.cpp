#include "host/SettingsFixture.h"
#include "support/MessageLog.h"

#include <QDir>

#include <random>
#include <vector>

using morvane::ApplicationSettings;
using morvane::test::MessageLog;

namespace {

class ApplicationSettingsDamageTest : public morvane::test::SettingsFixture
{
protected:
    QString aside() const { return m_file + QStringLiteral(".damaged"); }

    /** A file that holds "first" under "one" and a value full of traps under "two". */
    QByteArray smallFile()
    {
        ApplicationSettings settings(m_file);
        settings.depositValue("one", "first");
        settings.depositValue("two", QByteArray("a)b)\n=\0\"", 8));
        return read(m_file);
    }

    MessageLog m_log;
};

const QByteArray damagedContents[] = {QByteArray(1, '\0'), QByteArray(4096, '\0'), "no equals sign", "[values",
    "[values]\nkey", "[values]\n_61=", "[values]\n_61=12", "[values]\n_61=@ByteArray(x)",
    "[values]\n_61=@Variant(\\0\\0\\0\\x1c\\xff\\xff\\xff\\xff)", "[values]\n_61=text", "[values]\n=", "[values]\n_61",
    "\xFF\xFE[\0v\0", "<xml/>", "[values]\n_61=00000000", "[values]\n_61=0123456789\n\"open"};

} // namespace

TEST_F(ApplicationSettingsDamageTest, givesEmptyOrRightValuesForAFileCutAtAnyLength)
{
    const QByteArray whole = smallFile();
    const QByteArray two("a)b)\n=\0\"", 8);
    for (int length = 0; length < whole.size(); ++length) {
        write(m_file, whole.left(length));
        const QByteArray readOne = onDisk("one");
        const QByteArray readTwo = onDisk("two");
        EXPECT_TRUE(readOne.isEmpty() || readOne == "first") << length << ' ' << readOne.constData();
        EXPECT_TRUE(readTwo.isEmpty() || readTwo == two) << length << ' ' << readTwo.toHex().constData();
    }
}

TEST_F(ApplicationSettingsDamageTest, givesEmptyOrRightValuesForAFileWithAnyOneByteChanged)
{
    const QByteArray whole = smallFile();
    const QByteArray two("a)b)\n=\0\"", 8);
    for (int position = 0; position < whole.size(); ++position) {
        for (const char replacement : {'\0', 'a', '_', '=', '\n', '"', '\xFF'}) {
            QByteArray damaged = whole;
            damaged[position] = replacement;
            write(m_file, damaged);
            const QByteArray readOne = onDisk("one");
            const QByteArray readTwo = onDisk("two");
            EXPECT_TRUE(readOne.isEmpty() || readOne == "first") << position << ' ' << readOne.constData();
            EXPECT_TRUE(readTwo.isEmpty() || readTwo == two) << position << ' ' << readTwo.toHex().constData();
        }
    }
}

TEST_F(ApplicationSettingsDamageTest, givesEmptyValuesAndOneWarningAnObject)
{
    int warnings = 0;
    for (const QByteArray& content : damagedContents) {
        write(m_file, content);
        ApplicationSettings settings(m_file);
        for (int i = 0; i < 3; ++i) {
            EXPECT_TRUE(settings.getByteArrayValue("a").isEmpty()) << content.constData();
            EXPECT_TRUE(settings.getByteArrayValue("").isEmpty()) << content.constData();
        }
        ++warnings;
        EXPECT_EQ(m_log.texts(QtWarningMsg).size(), warnings) << content.constData();
        EXPECT_EQ(read(m_file), content) << "reading must not write";
    }
    EXPECT_EQ(m_log.texts(QtWarningMsg).first(), QStringLiteral("Warning: The settings file is damaged: ") + m_file);
    EXPECT_FALSE(m_log.entries().front().hasContext);
}

TEST_F(ApplicationSettingsDamageTest, movesTheDamagedFileAsideBeforeTheNextValueIsStored)
{
    int warnings = 0;
    for (const QByteArray& content : damagedContents) {
        QFile::remove(aside());
        write(m_file, content);
        ApplicationSettings settings(m_file);
        settings.depositValue("key", "value");
        settings.depositValue("other", "value");
        EXPECT_EQ(read(aside()), content);
        EXPECT_EQ(onDisk("key"), "value");
        EXPECT_EQ(onDisk("other"), "value");
        EXPECT_EQ(m_log.texts(QtWarningMsg).size(), ++warnings) << content.constData();
    }
}

TEST_F(ApplicationSettingsDamageTest, keepsEveryDamagedFile)
{
    ApplicationSettings settings(m_file);
    for (int i = 0; i < 4; ++i) {
        write(m_file, "damage " + QByteArray::number(i));
        settings.depositValue("key", "value");
    }
    EXPECT_EQ(read(aside()), "damage 0");
    EXPECT_EQ(read(aside() + QStringLiteral("-2")), "damage 1");
    EXPECT_EQ(read(aside() + QStringLiteral("-4")), "damage 3");
    EXPECT_EQ(m_log.texts(QtWarningMsg).size(), 1);
}

TEST_F(ApplicationSettingsDamageTest, survivesRandomBytes)
{
    std::mt19937 random(1);
    for (int i = 0; i < 300; ++i) {
        QByteArray content = i % 2 ? QByteArray("[values]\n_61=") : QByteArray();
        for (unsigned length = random() % 300; length > 0; --length) {
            content.append(static_cast<char>(random() & 0xFF));
        }
        write(m_file, content);
        ApplicationSettings settings(m_file);
        EXPECT_TRUE(settings.getByteArrayValue("a").isEmpty()) << content.toHex().constData();
        settings.depositValue("b", "value");
        EXPECT_EQ(settings.getByteArrayValue("b"), "value") << content.toHex().constData();
        EXPECT_EQ(onDisk("b"), "value") << content.toHex().constData();
    }
}

TEST_F(ApplicationSettingsDamageTest, takesAnEmptyFileForOneWithoutValues)
{
    write(m_file, "");
    ApplicationSettings settings(m_file);
    EXPECT_TRUE(settings.getByteArrayValue("key").isEmpty());
    settings.depositValue("key", "value");
    EXPECT_EQ(onDisk("key"), "value");
    EXPECT_TRUE(m_log.entries().empty());
    EXPECT_FALSE(QFile::exists(aside()));
}
