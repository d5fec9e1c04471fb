// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "host/SettingsFixture.h"
#include "support/MessageLog.h"

#include <random>

using morvane::ApplicationSettings;
using morvane::test::MessageLog;

namespace {

class ApplicationSettingsDamageTest : public morvane::test::SettingsFixture
{
protected:
    /** A file that holds "first" under "one" and "second" under "two". */
    QByteArray smallFile()
    {
        ApplicationSettings settings(m_file);
        settings.depositValue("one", "first");
        settings.depositValue("two", "second");
        return read(m_file);
    }

    MessageLog m_log;
};

} // namespace

TEST_F(ApplicationSettingsDamageTest, givesEmptyOrRightValuesForAFileCutAtAnyLength)
{
    const QByteArray whole = smallFile();
    for (int length = 0; length < whole.size(); ++length) {
        write(m_file, whole.left(length));
        const QByteArray readOne = onDisk("one");
        const QByteArray readTwo = onDisk("two");
        EXPECT_TRUE(readOne.isEmpty() || readOne == "first") << length << ' ' << readOne.constData();
        EXPECT_TRUE(readTwo.isEmpty() || readTwo == "second") << length << ' ' << readTwo.constData();
    }
}

TEST_F(ApplicationSettingsDamageTest, storesIntoAFileWithAnyOneByteChanged)
{
    const QByteArray whole = smallFile();
    for (int position = 0; position < whole.size(); ++position) {
        for (const char replacement : {'\0', '\n', '['}) {
            QByteArray damaged = whole;
            damaged[position] = replacement;
            write(m_file, damaged);
            ApplicationSettings(m_file).depositValue("three", "third");
            EXPECT_EQ(onDisk("three"), "third") << position;
        }
    }
}

TEST_F(ApplicationSettingsDamageTest, takesNothingForAValueThatWasStoredOtherwise)
{
    for (const char* const value :
        {"text", "12", "@Variant(\\0\\0\\0\\x1c\\xff\\xff\\xff\\xff)", "@ByteArray(x", "a, b", ""}) {
        write(m_file, QByteArray("[values]\n_one=") + value + '\n');
        EXPECT_TRUE(onDisk("one").isEmpty()) << value;
    }
}

TEST_F(ApplicationSettingsDamageTest, keepsWhatCanBeReadOfADamagedFileAndWarnsOnce)
{
    smallFile();
    write(m_file, "[values]\n_one=@ByteArray(first)\n[broken\n");
    ApplicationSettings settings(m_file);
    EXPECT_EQ(settings.getByteArrayValue("one"), "first");
    settings.depositValue("two", "new");
    settings.depositValue("three", "third");
    EXPECT_EQ(onDisk("one"), "first");
    EXPECT_EQ(onDisk("two"), "new");
    EXPECT_EQ(
        m_log.texts(QtWarningMsg), QStringList(QStringLiteral("Warning: The settings file is damaged: ") + m_file));
    EXPECT_FALSE(m_log.entries().front().hasContext);
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
        settings.getByteArrayValue("a");
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
}
