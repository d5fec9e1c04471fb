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
 * This default implementation keeps them in one INI file, through QSettings. Each value is on disk when depositValue()
 * returns. The file is replaced as a whole, so no process sees half of it, and several processes may store under
 * different keys at the same time. No call waits longer than a second for another process.
 *
 * A host replaces the service for the whole process by a subclass and setInstance() (or InstanceOverride), or at link
 * time by a library of its own. GUI thread only.
 *
 * @snippet 22-host-services/main.cpp settings
 */
class MORVANE_HOST_EXPORT ApplicationSettings
{
public:
    /** The replacement given to setInstance(), or else a default object made on first use, which uses
     * defaultFileName(). */
    static ApplicationSettings& getInstance();
    /**
     * Makes @p replacement the object that getInstance() returns; null brings the default object back.
     * @return the previous replacement, null when there was none. Ownership stays with the caller.
     */
    static ApplicationSettings* setInstance(ApplicationSettings* replacement);

    /** `settings.ini` in the application's own directory below the user's configuration directory. */
    static QString defaultFileName();

    /** @param fileName the file to keep the values in; it and its directory are made when the first value is stored. */
    explicit ApplicationSettings(const QString& fileName = defaultFileName());
    virtual ~ApplicationSettings();
    ApplicationSettings(const ApplicationSettings&) = delete;
    ApplicationSettings& operator=(const ApplicationSettings&) = delete;

    /**
     * The bytes last stored under @p key, or an empty array when there are none.
     *
     * @param key any UTF-8 text: the empty key, slashes, `=`, blanks and non-ASCII text are ordinary keys, and upper
     *        and lower case differ on every platform.
     *
     * A file that cannot be read gives empty arrays, and a damaged one the values that can still be read. Either
     * gives at most one warning in Qt's message log for each object.
     */
    virtual QByteArray getByteArrayValue(const std::string& key);

    /**
     * Stores @p value under @p key, replacing what was there. Any bytes are kept as they are; an empty array is stored
     * too, and cannot be told from a key that was never stored.
     *
     * Where the file cannot be written, or another process does not let go of it, one warning goes to Qt's message log
     * for each object, and the value is kept in memory. It is written with the next value that is stored, or when the
     * object ends, if the disk takes it then. The next write drops what cannot be read of a damaged file. Things that
     * are no files, and files over 16 MiB, are neither read nor written.
     */
    virtual void depositValue(const std::string& key, const QByteArray& value);

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace morvane
