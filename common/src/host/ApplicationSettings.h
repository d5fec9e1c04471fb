// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/MorvaneHostExport.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <string>

namespace morvane {

/**
 * The host's store of small named values, such as the geometry of a dialog.
 *
 * This default implementation keeps the values in one INI file, through QSettings. Each value is on disk when
 * depositValue() returns. The file is replaced as a whole, so no process reads a half-written file. Several processes
 * may store values under different keys at the same time. No call waits longer than one second for another process.
 *
 * A host can replace the service for the whole process: with a subclass and setInstance() (or InstanceOverride), or at
 * link time with its own library. GUI thread only.
 *
 * @snippet 22-host-services/main.cpp settings
 */
class MORVANE_HOST_EXPORT ApplicationSettings
{
public:
    /**
     * Returns the replacement that was given to setInstance(). Without one, returns a default object, which is created
     * on first use and uses defaultFileName().
     */
    static ApplicationSettings& getInstance();
    /**
     * Makes @p replacement the object that getInstance() returns. Null restores the default object.
     * @return the previous replacement; null if there was none. The caller keeps the ownership of both.
     */
    static ApplicationSettings* setInstance(ApplicationSettings* replacement);

    /** The path of `settings.ini` in the application's directory below the user's configuration directory. */
    static QString defaultFileName();

    /**
     * @param fileName the file that keeps the values; the file and its directory are created when the first value is
     * stored.
     */
    explicit ApplicationSettings(const QString& fileName = defaultFileName());
    virtual ~ApplicationSettings();
    ApplicationSettings(const ApplicationSettings&) = delete;
    ApplicationSettings& operator=(const ApplicationSettings&) = delete;

    /**
     * Returns the bytes last stored under @p key, or an empty array if there are none.
     *
     * @param key any UTF-8 text. The empty key is an ordinary key; so are keys with slashes, `=`, blanks and non-ASCII
     *        text. Keys are case-sensitive on every platform.
     *
     * If the file cannot be read, the result is an empty array. A damaged file gives the values that can still be read.
     * Each object writes at most one warning about this to Qt's message log.
     */
    virtual QByteArray getByteArrayValue(const std::string& key);

    /**
     * Stores @p value under @p key and replaces the previous value. The bytes are kept unchanged. An empty array is
     * stored, too; getByteArrayValue() returns the same for it as for a key that was never stored.
     *
     * If the file cannot be written, or another process keeps it locked, the value stays in memory. Each object writes
     * at most one warning about this to Qt's message log. The next call that stores a value, and the destructor, try to
     * write it again. If the file is damaged, the next write drops the parts that cannot be read. Paths that are not
     * regular files, and files larger than 16 MiB, are neither read nor written.
     */
    virtual void depositValue(const std::string& key, const QByteArray& value);

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace morvane
