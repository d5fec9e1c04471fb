// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Files that cannot be read or written, in the ways that only exist on Unix.

#include "host/SettingsFixture.h"
#include "support/MessageLog.h"

#include <QDir>
#include <QProcess>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

using morvane::ApplicationSettings;
using morvane::test::MessageLog;

namespace {

class ApplicationSettingsRefusalTest : public morvane::test::SettingsFixture
{
protected:
    /** The file can be neither read nor written: after one warning, stored values stay in memory. */
    void expectRefused(const QString& file)
    {
        MessageLog log;
        ApplicationSettings settings(file);
        EXPECT_TRUE(settings.getByteArrayValue("key").isEmpty());
        settings.depositValue("key", "value");
        settings.depositValue("key", "newer");
        settings.depositValue("other", "value");
        EXPECT_EQ(settings.getByteArrayValue("key"), "newer");
        EXPECT_EQ(settings.getByteArrayValue("other"), "value");
        EXPECT_EQ(log.texts(QtWarningMsg).size(), 1);
        EXPECT_EQ(log.entries().size(), 1U);
        EXPECT_TRUE(ApplicationSettings(file).getByteArrayValue("key").isEmpty()) << "another object sees it";
    }

    static mode_t typeOf(const QString& name)
    {
        struct stat status = {};
        return ::lstat(QFile::encodeName(name).constData(), &status) == 0 ? status.st_mode & S_IFMT : 0;
    }

    /** Makes a sparse file, which takes no space on the disk. */
    void makeFileOfSize(qint64 size)
    {
        QFile file(m_file);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_TRUE(file.resize(size));
    }

    /** The warnings that are logged when a value is read. */
    QStringList warningsOfReading() const
    {
        const MessageLog log;
        EXPECT_TRUE(onDisk("key").isEmpty());
        return log.texts(QtWarningMsg);
    }

    QByteArray native() const { return QFile::encodeName(m_file); }
};

int changeAttributes(const QString& change, const QString& file)
{
    return QProcess::execute(QStringLiteral("chattr"), {change, file});
}

/** Lets the file be removed again however the test ends. */
class ImmutableFile
{
public:
    explicit ImmutableFile(const QString& file) : m_file(file), m_set(changeAttributes(QStringLiteral("+i"), file) == 0)
    {
    }
    ~ImmutableFile() { release(); }
    ImmutableFile(const ImmutableFile&) = delete;
    ImmutableFile& operator=(const ImmutableFile&) = delete;

    bool isSet() const { return m_set; }
    void release()
    {
        if (m_set) {
            changeAttributes(QStringLiteral("-i"), m_file);
            m_set = false;
        }
    }

private:
    QString m_file;
    bool m_set;
};

/** Limits the size of the files that this process can write, as a full disk does. */
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes) : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        EXPECT_EQ(::getrlimit(RLIMIT_FSIZE, &m_before), 0);
        const rlimit limit{bytes, m_before.rlim_max};
        EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
    }
    ~FileSizeLimit()
    {
        EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &m_before), 0);
        std::signal(SIGXFSZ, m_handler);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    void (*m_handler)(int);
    rlimit m_before = {};
};

} // namespace

TEST_F(ApplicationSettingsRefusalTest, leavesADirectoryOfThatNameAlone)
{
    QDir(m_directory.path()).mkpath(m_file + QStringLiteral("/inner"));
    expectRefused(m_file);
    EXPECT_TRUE(QDir(m_file + QStringLiteral("/inner")).exists());
}

TEST_F(ApplicationSettingsRefusalTest, doesNotWaitForTheOtherEndOfAPipe)
{
    ASSERT_EQ(::mkfifo(native().constData(), 0600), 0);
    expectRefused(m_file);
    EXPECT_EQ(typeOf(m_file), static_cast<mode_t>(S_IFIFO));
}

TEST_F(ApplicationSettingsRefusalTest, leavesADanglingLinkAlone)
{
    ASSERT_EQ(::symlink("missing", native().constData()), 0);
    expectRefused(m_file);
    EXPECT_EQ(typeOf(m_file), static_cast<mode_t>(S_IFLNK));
    EXPECT_FALSE(QFile::exists(m_directory.filePath(QStringLiteral("missing"))));
}

TEST_F(ApplicationSettingsRefusalTest, leavesALinkToItselfAlone)
{
    ASSERT_EQ(::symlink("settings.ini", native().constData()), 0);
    expectRefused(m_file);
    EXPECT_EQ(typeOf(m_file), static_cast<mode_t>(S_IFLNK));
}

TEST_F(ApplicationSettingsRefusalTest, refusesANameBelowAFile)
{
    write(m_file, "not a directory");
    expectRefused(m_file + QStringLiteral("/settings.ini"));
    EXPECT_EQ(read(m_file), "not a directory");
}

TEST_F(ApplicationSettingsRefusalTest, refusesFilesOfTheKernel)
{
    for (const char* const name : {"/proc/version", "/proc/morvane.ini", "/proc/self/mem", "/dev/null", "/dev/full"}) {
        SCOPED_TRACE(name);
        expectRefused(QString::fromLatin1(name));
    }
}

TEST_F(ApplicationSettingsRefusalTest, refusesANameThatIsTooLong)
{
    expectRefused(m_directory.filePath(QString(300, QLatin1Char('x'))));
}

TEST_F(ApplicationSettingsRefusalTest, doesNotReadAHugeFile)
{
    makeFileOfSize(Q_INT64_C(20) << 30);
    expectRefused(m_file);
    EXPECT_EQ(QFileInfo(m_file).size(), Q_INT64_C(20) << 30);
}

TEST_F(ApplicationSettingsRefusalTest, readsAFileOfTheLargestSizeAndNoneBeyond)
{
    const qint64 largest = Q_INT64_C(16) << 20;
    makeFileOfSize(largest);
    EXPECT_TRUE(warningsOfReading().isEmpty());
    makeFileOfSize(largest + 1);
    EXPECT_EQ(warningsOfReading(), QStringList(QStringLiteral("Warning: The settings file cannot be read: ") + m_file));
}

TEST_F(ApplicationSettingsRefusalTest, storesNothingWithoutTheLock)
{
    const MessageLog log;
    ApplicationSettings settings(m_file);
    {
        const FileSizeLimit limit(5); // too little for what Qt writes into a lock
        settings.depositValue("k", "v");
    }
    EXPECT_EQ(log.texts(QtWarningMsg).size(), 1);
    EXPECT_EQ(settings.getByteArrayValue("k"), "v");
    EXPECT_FALSE(QFile::exists(m_file));
    settings.depositValue("other", "value");
    EXPECT_EQ(onDisk("k"), "v");
}

TEST_F(ApplicationSettingsRefusalTest, keepsALinkToTheFileInPlace)
{
    const QString real = m_directory.filePath(QStringLiteral("real.ini"));
    ApplicationSettings(real).depositValue("old", "value");
    ASSERT_EQ(::symlink("real.ini", native().constData()), 0);
    ApplicationSettings settings(m_file);
    settings.depositValue("new", "value");
    EXPECT_EQ(settings.getByteArrayValue("old"), "value");
    EXPECT_EQ(typeOf(m_file), static_cast<mode_t>(S_IFLNK));
    EXPECT_EQ(ApplicationSettings(real).getByteArrayValue("new"), "value");
}

TEST_F(ApplicationSettingsRefusalTest, keepsInMemoryWhatAnImmutableFileDoesNotTake)
{
    ApplicationSettings(m_file).depositValue("key", "old");
    const QByteArray before = read(m_file);
    ImmutableFile immutable(m_file);
    if (!immutable.isSet()) {
        GTEST_SKIP() << "chattr +i does not work here (file system or privileges)";
    }
    MessageLog log;
    ApplicationSettings settings(m_file);
    EXPECT_EQ(settings.getByteArrayValue("key"), "old");
    settings.depositValue("key", "new");
    settings.depositValue("key", "newer");
    EXPECT_EQ(settings.getByteArrayValue("key"), "newer");
    EXPECT_EQ(log.texts(QtWarningMsg),
        QStringList(QStringLiteral("Warning: The settings file cannot be written: ") + m_file));
    EXPECT_EQ(read(m_file), before);
    EXPECT_EQ(
        QDir(m_directory.path()).entryList(QDir::Files | QDir::Hidden), QStringList{QStringLiteral("settings.ini")});
    immutable.release();
    settings.depositValue("other", "value");
    EXPECT_TRUE(read(m_file).contains("newer")) << "what was refused is written once the disk takes it";
    EXPECT_TRUE(read(m_file).contains("value"));
}

TEST_F(ApplicationSettingsRefusalTest, writesWhatWasRefusedWhenTheObjectEnds)
{
    ApplicationSettings(m_file).depositValue("key", "old");
    const MessageLog log;
    {
        ApplicationSettings settings(m_file);
        ImmutableFile immutable(m_file);
        if (!immutable.isSet()) {
            GTEST_SKIP() << "chattr +i does not work here (file system or privileges)";
        }
        settings.depositValue("key", "new");
        EXPECT_FALSE(read(m_file).contains("new"));
    }
    EXPECT_TRUE(read(m_file).contains("new"));
}

TEST_F(ApplicationSettingsRefusalTest, keepsInMemoryWhatAnotherUsersFileDoesNotTake)
{
    if (::geteuid() != 0) {
        GTEST_SKIP() << "only root can act as another user";
    }
    ApplicationSettings(m_file).depositValue("key", "old");
    const QByteArray before = read(m_file);
    ASSERT_EQ(::chmod(QFile::encodeName(m_directory.path()).constData(), 0755), 0);
    ASSERT_EQ(::chmod(native().constData(), 0644), 0);
    QProcess worker;
    worker.start(QStringLiteral(SETTINGS_WORKER), {QStringLiteral("store-unprivileged"), m_file});
    ASSERT_TRUE(worker.waitForFinished());
    ASSERT_EQ(worker.exitCode(), 0) << worker.readAllStandardError().constData();
    EXPECT_EQ(worker.readAllStandardOutput(), "newer\n");
    EXPECT_EQ(worker.readAllStandardError().count("Warning: The settings file cannot be written"), 1);
    EXPECT_EQ(read(m_file), before);
}
