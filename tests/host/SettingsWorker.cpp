// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// A second process for the tests of the settings: settings_worker MODE FILE [ARGUMENT...]

#include "host/ApplicationSettings.h"

#include <QFile>
#include <QLockFile>
#include <QString>
#include <QThread>

#include <cstdio>
#include <cstdlib>
#include <string>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

using morvane::ApplicationSettings;

namespace {

/** Stores "PREFIX0" to "PREFIX<COUNT - 1>", each several times with values of the same length. */
int store(const QString& file, const std::string& prefix, int count)
{
    ApplicationSettings settings(file);
    for (int round = 0; round < 3; ++round) {
        for (int i = 0; i < count; ++i) {
            settings.depositValue(prefix + std::to_string(i), QByteArray::number(1000 * round + i).rightJustified(8));
        }
    }
    return 0;
}

/** Reads the key "big" until STOP exists; fails if its value is not the same byte 100,000 times. */
int watch(const QString& file, const QString& stop)
{
    ApplicationSettings settings(file);
    int reads = 0;
    do {
        const QByteArray value = settings.getByteArrayValue("big");
        if (value.size() != 100000 || value.count(value.at(0)) != value.size()) {
            std::printf("half a value of %d bytes\n", static_cast<int>(value.size()));
            return 1;
        }
        ++reads;
        if (reads == 1) {
            std::puts("reading");
            std::fflush(stdout);
        }
    } while (!QFile::exists(stop));
    std::printf("%d reads\n", reads);
    return 0;
}

/** Ends without any clean-up right after the value was stored. */
int storeAndDie(const QString& file)
{
    ApplicationSettings(file).depositValue("last", "words");
    std::_Exit(0);
}

/** Ends while it holds the lock. To the other processes, it ends in the middle of a write. */
int lockAndDie(const QString& file)
{
    QLockFile lock(file + QStringLiteral(".lock"));
    std::_Exit(lock.lock() ? 0 : 1);
}

/** Stores different big values until it is killed. */
int storeForever(const QString& file)
{
    ApplicationSettings settings(file);
    std::puts("storing");
    std::fflush(stdout);
    for (int round = 0;; ++round) {
        settings.depositValue("big", QByteArray(100000, static_cast<char>('a' + round % 20)));
    }
}

/** Holds a lock until it is killed. */
int hold(const QString& lockName)
{
    QLockFile lock(lockName);
    if (!lock.lock()) {
        return 1;
    }
    std::puts("holding");
    std::fflush(stdout);
    for (;;) {
        QThread::sleep(1);
    }
}

/** Tries to store a value as a user without permission, then reads it back. */
int storeUnprivileged(const QString& file)
{
#ifdef Q_OS_UNIX
    const uid_t nobody = 65534;
    if (setgid(nobody) != 0 || setuid(nobody) != 0) {
        return 77;
    }
#endif
    ApplicationSettings settings(file);
    settings.depositValue("key", "new");
    settings.depositValue("key", "newer");
    std::printf("%s\n", settings.getByteArrayValue("key").constData());
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    const std::string mode = argc > 2 ? argv[1] : "";
    const QString file = argc > 2 ? QFile::decodeName(argv[2]) : QString();
    if (mode == "store" && argc == 5) {
        return store(file, argv[3], std::atoi(argv[4]));
    }
    if (mode == "watch" && argc == 4) {
        return watch(file, QFile::decodeName(argv[3]));
    }
    if (mode == "store-and-die") {
        return storeAndDie(file);
    }
    if (mode == "lock-and-die") {
        return lockAndDie(file);
    }
    if (mode == "store-forever") {
        return storeForever(file);
    }
    if (mode == "hold") {
        return hold(file);
    }
    if (mode == "store-unprivileged") {
        return storeUnprivileged(file);
    }
    return 2;
}
