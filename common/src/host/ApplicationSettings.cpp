#include "host/ApplicationSettings.h"

#include "host/SettingsDocument.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QMessageLogger>
#include <QSaveFile>
#include <QStandardPaths>
#include <QThread>

#include <map>
#include <utility>

namespace morvane {

namespace {

ApplicationSettings* replacementInstance = nullptr;

const qint64 largestFile = qint64(256) * 1024 * 1024;
const int longestWaitMs = 10000;

// Windows does not replace a file while somebody has it open, nor open one while it is being replaced; for a moment it
// may not even be listed.
#ifdef Q_OS_WIN
const int longestReplacingMs = 2000;
#else
const int longestReplacingMs = 0;
#endif

enum class FileState
{
    Missing,
    Intact,
    Damaged,
    Unreadable
};

struct Snapshot
{
    FileState state;
    SettingsDocument document;
};

/** Looks again and again, at least twice where the time is not zero. */
template <typename Condition>
void waitFor(int longestMs, Condition condition)
{
    const QDeadlineTimer deadline(longestMs);
    while (!condition() && !deadline.hasExpired()) {
        QThread::msleep(2);
    }
}

QString lockName(const QString& fileName)
{
    return fileName + QStringLiteral(".lock");
}

/** Waits until the condition holds, but only while somebody holds the lock and may be replacing the file. */
template <typename Condition>
bool waitWhileReplaced(const QString& fileName, Condition condition)
{
    waitFor(longestReplacingMs, [&] { return condition() || !QFileInfo::exists(lockName(fileName)); });
    return condition();
}

// QSettings would not do: it reads a line that was cut off as a shorter value, and its process-wide cache hands out,
// and writes later, values that could not be written.
/** @param isLocked whether the caller holds the lock, so that nobody replaces the file meanwhile */
Snapshot readFile(const QString& fileName, bool isLocked = false)
{
    if (!isLocked) {
        waitWhileReplaced(fileName, [&] { return QFileInfo::exists(fileName); });
    }
    const QFileInfo info(fileName);
    if (!info.exists()) {
        return {info.isSymLink() ? FileState::Unreadable : FileState::Missing, {}};
    }
    QFile file(fileName);
    // Opening a pipe or a device would wait for its other end.
    const auto opens = [&] { return file.isOpen() || file.open(QIODevice::ReadOnly); };
    if (!info.isFile() || info.size() > largestFile || !(isLocked ? opens() : waitWhileReplaced(fileName, opens))) {
        return {FileState::Unreadable, {}};
    }
    const QByteArray content = file.readAll();
    const bool isComplete = content.size() == file.size();
    file.close(); // not held for longer than needed: it may be about to be replaced
    std::optional<SettingsDocument> document = SettingsDocument::parse(content);
    if (!isComplete || !document) {
        return {FileState::Damaged, {}};
    }
    return {FileState::Intact, std::move(*document)};
}

/** Writes a new file and puts it in the place of the old one. */
QFileDevice::FileError replaceFile(const QString& fileName, const QByteArray& content)
{
    QSaveFile file(fileName);
    // Flushed first, because commit() takes no notice of what the disk refuses then.
    const bool isWritten =
        file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush() && file.commit();
    const QFileDevice::FileError error = file.error() == QFileDevice::NoError ? QFileDevice::WriteError : file.error();
    return isWritten ? QFileDevice::NoError : error;
}

bool writeFile(const QString& fileName, const QByteArray& content)
{
    QFileDevice::FileError error = QFileDevice::NoError;
    waitFor(longestReplacingMs, [&] {
        error = replaceFile(fileName, content);
        return error != QFileDevice::RenameError;
    });
    return error == QFileDevice::NoError;
}

bool moveAside(const QString& fileName)
{
    const QString base = fileName + QStringLiteral(".damaged");
    QString target = base;
    for (int number = 2; QFileInfo::exists(target); ++number) {
        target = base + QLatin1Char('-') + QString::number(number);
    }
    return QFile::rename(fileName, target);
}

// QLockFile's own waiting backs off to seconds, which starves a process among busy ones.
bool acquire(QLockFile& lock)
{
    const QDeadlineTimer deadline(longestWaitMs);
    while (!lock.tryLock(0)) {
        if (lock.error() != QLockFile::LockFailedError || deadline.hasExpired()) {
            return false;
        }
        QThread::msleep(2);
    }
    return true;
}

} // namespace

struct ApplicationSettings::Impl
{
    explicit Impl(const QString& name) : fileName(name) {}

    void warnOnce(const char* what)
    {
        if (!warned) {
            warned = true;
            QMessageLogger().warning("Warning: %s: %s", what, fileName.toUtf8().constData());
        }
    }

    bool holds(const std::string& key, const QByteArray& value) const
    {
        const Snapshot snapshot = readFile(fileName);
        return snapshot.state == FileState::Intact && snapshot.document.value(key) == value;
    }

    bool write(const std::string& key, const QByteArray& value)
    {
        // A dialog that opens stores the geometry that it has just restored; that need not wait for the disk.
        if (holds(key, value)) {
            return true;
        }
        // The file behind a link is locked and replaced, whichever of its names is used.
        const QString canonical = QFileInfo(fileName).canonicalFilePath();
        const QString target = canonical.isEmpty() ? fileName : canonical;
        QLockFile lock(lockName(target));
        if (!QDir().mkpath(QFileInfo(target).path()) || !acquire(lock)) {
            return false;
        }
        Snapshot snapshot = readFile(fileName, true);
        if (snapshot.state == FileState::Unreadable) {
            return false;
        }
        if (snapshot.state == FileState::Damaged) {
            warnOnce("The settings file is damaged");
            if (!moveAside(target)) {
                return false;
            }
        }
        snapshot.document.setValue(key, value);
        return writeFile(target, snapshot.document.toByteArray());
    }

    const QString fileName;
    bool warned = false;
    std::map<std::string, QByteArray> unwritten;
};

ApplicationSettings& ApplicationSettings::getInstance()
{
    if (replacementInstance) {
        return *replacementInstance;
    }
    static ApplicationSettings defaultInstance;
    return defaultInstance;
}

ApplicationSettings* ApplicationSettings::setInstance(ApplicationSettings* replacement)
{
    ApplicationSettings* const previous = replacementInstance;
    replacementInstance = replacement;
    return previous;
}

QString ApplicationSettings::defaultFileName()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) + QStringLiteral("/settings.ini");
}

ApplicationSettings::ApplicationSettings(const QString& fileName)
    : m_impl(std::make_unique<Impl>(QFileInfo(fileName).absoluteFilePath()))
{
}

ApplicationSettings::~ApplicationSettings() = default;

QByteArray ApplicationSettings::getByteArrayValue(const std::string& key)
{
    const auto unwritten = m_impl->unwritten.find(key);
    if (unwritten != m_impl->unwritten.end()) {
        return unwritten->second;
    }
    const Snapshot snapshot = readFile(m_impl->fileName);
    if (snapshot.state == FileState::Damaged) {
        m_impl->warnOnce("The settings file is damaged");
    } else if (snapshot.state == FileState::Unreadable) {
        m_impl->warnOnce("The settings file cannot be read");
    }
    return snapshot.document.value(key);
}

void ApplicationSettings::depositValue(const std::string& key, const QByteArray& value)
{
    if (m_impl->write(key, value)) {
        m_impl->unwritten.erase(key);
        return;
    }
    m_impl->warnOnce("The settings file cannot be written");
    m_impl->unwritten[key] = value;
}

} // namespace morvane
