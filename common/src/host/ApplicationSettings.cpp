// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "host/ApplicationSettings.h"

#include "host/ReplaceableInstance_p.h"

#include <QDateTime>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QMessageLogger>
#include <QSettings>
#include <QStandardPaths>
#include <QThread>

#include <map>

namespace morvane {

namespace {

ui::ReplaceableInstance<ApplicationSettings> currentSettings;

const qint64 largestFile = qint64(16) * 1024 * 1024;
const int longestWaitMs = 1000; // longest time that one call waits for other processes

/** Upper case is encoded, because QSettings ignores case in INI files on Windows. */
QString nameOf(const std::string& key)
{
    QByteArray name = "values/_"; // never empty
    for (const char character : key) {
        const bool isPlain = (character >= 'a' && character <= 'z') || (character >= '0' && character <= '9') ||
                             character == '-' || character == '.';
        name += isPlain ? QByteArray(1, character) : '_' + QByteArray(1, character).toHex();
    }
    return QString::fromLatin1(name);
}

/** The file that a link leads to. That file is locked and replaced, so that all its names share one lock. */
QString targetOf(const QString& fileName)
{
    const QString canonical = QFileInfo(fileName).canonicalFilePath();
    return canonical.isEmpty() ? fileName : canonical;
}

/** Whether a file may be opened. Pipes and devices are not opened, because they would block. */
bool isMissingOrFile(const QString& fileName)
{
    const QFileInfo info(fileName);
    return info.exists() ? info.isFile() && info.size() <= largestFile : !info.isSymLink();
}

// QLockFile itself would wait for seconds between two attempts, and other processes would be faster each time.
bool acquire(QLockFile& lock, const QDeadlineTimer& deadline)
{
    // A process that is killed while it makes its lock leaves an empty file. Qt never removes the lock of a process
    // that is still running.
    lock.setStaleLockTime(longestWaitMs / 2);
    while (!lock.tryLock(0)) {
        if (lock.error() != QLockFile::LockFailedError || deadline.hasExpired()) {
            return false;
        }
        QThread::msleep(2);
    }
    return true;
}

/** Waits until the lock of QSettings is free, because QSettings itself would wait without a limit. */
bool waitUntilFree(const QString& target, const QDeadlineTimer& deadline)
{
    QLockFile lock(target + QStringLiteral(".lock"));
    return acquire(lock, deadline);
}

QString guardOf(const QString& target)
{
    return target + QStringLiteral(".guard");
}

/** What shows that a file was replaced, or is being replaced. */
struct FileState
{
    explicit FileState(const QString& target)
        : hasGuard(QFileInfo::exists(guardOf(target))),
          exists(QFileInfo::exists(target)),
          size(QFileInfo(target).size()),
          modified(QFileInfo(target).lastModified())
    {
    }

    bool isSameFile(const FileState& other) const
    {
        return exists == other.exists && size == other.size && modified == other.modified;
    }

    bool hasGuard;
    bool exists;
    qint64 size;
    QDateTime modified;
};

/** Whether `settings`, which were read between the two states, have all that was in the file. */
bool isReliable(const QSettings& settings, const FileState& before, const FileState& after)
{
    const bool wasRead = after.exists && settings.status() != QSettings::AccessError;
    const bool wasLeftAlone = !before.hasGuard && !after.hasGuard;
    return after.isSameFile(before) ? wasRead || wasLeftAlone : !settings.allKeys().isEmpty();
}

// On Windows a file can be neither opened nor found while it is being replaced.
std::unique_ptr<QSettings> openForReading(const QString& target, const QDeadlineTimer& deadline)
{
    const FileState before(target);
    auto settings = std::make_unique<QSettings>(target, QSettings::IniFormat);
    if (!isReliable(*settings, before, FileState(target))) {
        QLockFile guard(guardOf(target)); // nobody replaces the file while this is locked
        acquire(guard, deadline);
        settings = std::make_unique<QSettings>(target, QSettings::IniFormat);
    }
    return settings;
}

// QSettings reads a file again only when its size or its time, in milliseconds, has changed.
void makeLater(const QString& target, const QDateTime& before)
{
    if (before.isValid() && QFileInfo(target).lastModified() <= before) {
        QFile file(target);
        if (file.open(QIODevice::ReadWrite)) {
            file.setFileTime(before.addMSecs(1), QFileDevice::FileModificationTime);
        }
    }
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

    QByteArray read(const std::string& key, const QDeadlineTimer& deadline)
    {
        const QString target = targetOf(fileName);
        if (!isMissingOrFile(target)) {
            warnOnce("The settings file cannot be read");
            return QByteArray();
        }
        // QSettings still holds the values that could not be written, and tries to write them on every access.
        if (hasRefused && !waitUntilFree(target, deadline)) {
            return QByteArray();
        }
        const std::unique_ptr<QSettings> settings = openForReading(target, deadline);
        if (settings->status() != QSettings::NoError) {
            warnOnce(settings->status() == QSettings::FormatError ? "The settings file is damaged"
                                                                  : "The settings file cannot be read");
        }
        // QSettings reads a truncated value as text.
        const QVariant value = settings->value(nameOf(key));
        return value.userType() == QMetaType::QByteArray ? value.toByteArray() : QByteArray();
    }

    /** Writes all values that are not written yet. */
    bool write(const QDeadlineTimer& deadline)
    {
        const QString target = targetOf(fileName);
        // All users of this class wait for this lock, with a limit. So they do not wait for the lock of QSettings.
        QLockFile guard(guardOf(target));
        if (!isMissingOrFile(target) || !QDir().mkpath(QFileInfo(target).path()) || !acquire(guard, deadline) ||
            !waitUntilFree(target, deadline)) {
            return false;
        }
        const QDateTime before = QFileInfo(target).lastModified();
        hasRefused = !sync(target);
        makeLater(target, before);
        return !hasRefused;
    }

    bool sync(const QString& target)
    {
        // Two objects, because an object that has reported a damaged file does not report a failed write.
        if (QSettings(target, QSettings::IniFormat).status() == QSettings::FormatError) {
            warnOnce("The settings file is damaged");
        }
        QSettings settings(target, QSettings::IniFormat);
        for (const auto& [key, value] : unwritten) {
            settings.setValue(nameOf(key), value);
        }
        settings.sync();
        return settings.status() == QSettings::NoError;
    }

    const QString fileName;
    bool warned = false;
    std::map<std::string, QByteArray> unwritten;
    static bool hasRefused; // static, because QSettings shares the values that it could not write
};

bool ApplicationSettings::Impl::hasRefused = false;

ApplicationSettings& ApplicationSettings::getInstance()
{
    return currentSettings.get();
}

ApplicationSettings* ApplicationSettings::setInstance(ApplicationSettings* replacement)
{
    return currentSettings.replace(replacement);
}

QString ApplicationSettings::defaultFileName()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) + QStringLiteral("/settings.ini");
}

ApplicationSettings::ApplicationSettings(const QString& fileName)
    : m_impl(std::make_unique<Impl>(QFileInfo(fileName).absoluteFilePath()))
{
}

ApplicationSettings::~ApplicationSettings()
{
    if (!m_impl->unwritten.empty()) {
        m_impl->write(QDeadlineTimer(longestWaitMs));
    }
}

QByteArray ApplicationSettings::getByteArrayValue(const std::string& key)
{
    const auto unwritten = m_impl->unwritten.find(key);
    return unwritten != m_impl->unwritten.end() ? unwritten->second : m_impl->read(key, QDeadlineTimer(longestWaitMs));
}

void ApplicationSettings::depositValue(const std::string& key, const QByteArray& value)
{
    const QDeadlineTimer deadline(longestWaitMs);
    // A dialog stores the geometry that it has just restored when it opens. Then nothing needs to be written.
    if (m_impl->unwritten.empty() && !value.isEmpty() && m_impl->read(key, deadline) == value) {
        return;
    }
    m_impl->unwritten[key] = value;
    if (m_impl->write(deadline)) {
        m_impl->unwritten.clear();
    } else {
        m_impl->warnOnce("The settings file cannot be written");
    }
}

} // namespace morvane
