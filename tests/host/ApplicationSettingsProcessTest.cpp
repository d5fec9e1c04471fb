// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "host/SettingsFixture.h"
#include "support/MessageLog.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QStringList>
#include <QThread>

#include <algorithm>
#include <functional>
#include <iostream>
#include <memory>
#include <vector>

using morvane::ApplicationSettings;

namespace {

const int longestRunMs = 50000;

class ApplicationSettingsProcessTest : public morvane::test::SettingsFixture
{
protected:
    void start(QProcess& process, const QString& mode, const QStringList& arguments = {})
    {
        process.setProcessChannelMode(QProcess::MergedChannels);
        startWorker(process, QStringList{mode, m_file} + arguments);
    }

    // Under Wine, now and then a process cannot be created. Only such a start is repeated, and only once.
    static void startWorker(QProcess& process, const QStringList& arguments)
    {
        process.start(QStringLiteral(SETTINGS_WORKER), arguments);
        bool isStarted = process.waitForStarted();
        if (!isStarted && process.error() == QProcess::FailedToStart) {
            std::cout << "The worker is started again: " << process.errorString().toStdString() << std::endl;
            process.start(QStringLiteral(SETTINGS_WORKER), arguments);
            isStarted = process.waitForStarted();
        }
        ASSERT_TRUE(isStarted) << process.errorString().toStdString();
    }

    static void expectSuccess(QProcess& process)
    {
        ASSERT_TRUE(process.waitForFinished(longestRunMs));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(process.exitCode(), 0) << process.readAll().constData();
    }

    /** Holds a lock until it is killed. */
    static void hold(QProcess& process, const QString& lockName)
    {
        startWorker(process, {QStringLiteral("hold"), lockName});
        ASSERT_TRUE(process.waitForReadyRead(longestRunMs));
    }

    static void kill(QProcess& process)
    {
        process.kill();
        ASSERT_TRUE(process.waitForFinished(longestRunMs));
    }

    /** The shortest of three times that a call takes: a busy machine may make one of them long. */
    static qint64 millisecondsOf(const std::function<void()>& call)
    {
        qint64 shortest = longestRunMs;
        for (int i = 0; i < 3; ++i) {
            QElapsedTimer timer;
            timer.start();
            call();
            shortest = std::min(shortest, timer.elapsed());
        }
        return shortest;
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

TEST_F(ApplicationSettingsProcessTest, leavesTheOldOrTheNewFileWhenItIsKilledAtAnyMoment)
{
    ApplicationSettings(m_file).depositValue("other", "value");
    for (int round = 0; round < 40; ++round) {
        QProcess process;
        start(process, QStringLiteral("store-forever"));
        ASSERT_TRUE(process.waitForReadyRead(longestRunMs));
        QThread::msleep(static_cast<unsigned long>(round)); // another moment in each round
        process.kill();
        ASSERT_TRUE(process.waitForFinished(longestRunMs));
        const QByteArray value = onDisk("big");
        EXPECT_TRUE(value.isEmpty() || (value.size() == 100000 && value.count(value.at(0)) == value.size())) << round;
        EXPECT_EQ(onDisk("other"), "value") << round;
        ApplicationSettings(m_file).depositValue("mine", QByteArray::number(round));
        EXPECT_EQ(onDisk("mine"), QByteArray::number(round));
    }
    EXPECT_FALSE(onDisk("big").isEmpty());
}

TEST_F(ApplicationSettingsProcessTest, goesOnWhenAnotherProcessDoesNotLetGoOfTheFile)
{
    for (const char* const lock : {".lock", ".guard"}) {
        SCOPED_TRACE(lock);
        QProcess other;
        hold(other, m_file + QString::fromLatin1(lock));
        const morvane::test::MessageLog log;
        ApplicationSettings settings(m_file);
        settings.depositValue("key", lock);
        EXPECT_EQ(settings.getByteArrayValue("key"), lock);
        EXPECT_NE(onDisk("key"), lock);
        EXPECT_EQ(log.texts(QtWarningMsg).size(), 1);
        kill(other);
        settings.depositValue("other", lock);
        EXPECT_EQ(onDisk("key"), lock);
    }
}

TEST_F(ApplicationSettingsProcessTest, waitsAtMostASecondInEachCallForAnotherProcess)
{
    QProcess other;
    hold(other, m_file + QStringLiteral(".guard"));
    const morvane::test::MessageLog log;
    EXPECT_LT(millisecondsOf([&] { EXPECT_EQ(onDisk("key"), QByteArray()); }), 1900);
    // A new object each time, because one with a refused value does not read before it writes.
    std::vector<std::unique_ptr<ApplicationSettings>> objects;
    EXPECT_LT(millisecondsOf([&] {
        objects.push_back(std::make_unique<ApplicationSettings>(m_file));
        objects.back()->depositValue("key", "value");
    }),
        1900);
    kill(other);
}

TEST_F(ApplicationSettingsProcessTest, doesNotWaitToReadAFileThatNobodyReplaces)
{
    for (const char* const content : {"", "[values]\n", "no settings"}) {
        SCOPED_TRACE(content);
        write(m_file, content);
        QProcess other;
        hold(other, m_file + QStringLiteral(".guard"));
        const morvane::test::MessageLog log;
        EXPECT_LT(millisecondsOf([&] { EXPECT_EQ(onDisk("key"), QByteArray()); }), 900);
        kill(other);
    }
}

TEST_F(ApplicationSettingsProcessTest, doesNotWaitForAProcessThatDiedWhileItStored)
{
    QProcess dead;
    hold(dead, m_file + QStringLiteral(".guard"));
    kill(dead);
    ASSERT_TRUE(QFile::exists(m_file + QStringLiteral(".guard")));
    EXPECT_EQ(onDisk("key"), QByteArray());
    EXPECT_FALSE(QFile::exists(m_file + QStringLiteral(".guard"))) << "every later call would wait for it";
}
