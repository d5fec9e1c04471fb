#include "host/SettingsFixture.h"
#include "support/MessageLog.h"

#include <QProcess>
#include <QStringList>

using morvane::ApplicationSettings;

namespace {

const int longestRunMs = 50000;

class ApplicationSettingsProcessTest : public morvane::test::SettingsFixture
{
protected:
    void start(QProcess& process, const QString& mode, const QStringList& arguments = {})
    {
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(QStringLiteral(SETTINGS_WORKER), QStringList{mode, m_file} + arguments);
        ASSERT_TRUE(process.waitForStarted()) << process.errorString().toStdString();
    }

    static void expectSuccess(QProcess& process)
    {
        ASSERT_TRUE(process.waitForFinished(longestRunMs));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(process.exitCode(), 0) << process.readAll().constData();
    }

    void expectStored(const std::string& prefix, int count)
    {
        ApplicationSettings settings(m_file);
        for (int i = 0; i < count; ++i) {
            EXPECT_EQ(settings.getByteArrayValue(prefix + std::to_string(i)).trimmed(), QByteArray::number(2000 + i));
        }
    }
};

} // namespace

TEST_F(ApplicationSettingsProcessTest, losesNothingWhenTwoProcessesStoreAtTheSameTime)
{
    const int count = 60;
    QProcess one;
    QProcess two;
    start(one, QStringLiteral("store"), {QStringLiteral("one"), QString::number(count)});
    start(two, QStringLiteral("store"), {QStringLiteral("two"), QString::number(count)});
    expectSuccess(one);
    expectSuccess(two);
    EXPECT_TRUE(one.readAll().isEmpty() && two.readAll().isEmpty()) << "a worker wrote to its log";
    expectStored("one", count);
    expectStored("two", count);
}

TEST_F(ApplicationSettingsProcessTest, neverShowsAnotherProcessHalfAFile)
{
    const QString stop = m_directory.filePath(QStringLiteral("stop"));
    ApplicationSettings settings(m_file);
    settings.depositValue("big", QByteArray(100000, 'a'));
    QProcess reader;
    start(reader, QStringLiteral("watch"), {stop});
    ASSERT_TRUE(reader.waitForReadyRead(longestRunMs));
    for (int i = 0; i < 150; ++i) {
        settings.depositValue("big", QByteArray(100000, static_cast<char>('a' + i % 20)));
    }
    write(stop, "");
    expectSuccess(reader);
    EXPECT_TRUE(reader.readAll().contains("reads"));
}

TEST_F(ApplicationSettingsProcessTest, hasTheValueOnDiskWhenTheProcessDiesRightAfterwards)
{
    QProcess process;
    start(process, QStringLiteral("store-and-die"));
    expectSuccess(process);
    EXPECT_EQ(onDisk("last"), "words");
}

TEST_F(ApplicationSettingsProcessTest, storesAfterAnotherProcessDiedHoldingTheLock)
{
    QProcess dead;
    start(dead, QStringLiteral("lock-and-die"));
    expectSuccess(dead);
    ASSERT_TRUE(QFile::exists(m_file + QStringLiteral(".lock")));
    morvane::test::MessageLog log;
    ApplicationSettings(m_file).depositValue("key", "value");
    EXPECT_EQ(onDisk("key"), "value");
    EXPECT_TRUE(log.entries().empty());
}
