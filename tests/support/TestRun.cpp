// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "support/TestRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QLocale>
#include <QTemporaryDir>

#include <cstdio>

namespace {

/** The tests must not change the settings, caches and well-known folders of the user who runs them. */
void usePrivateHome(const QTemporaryDir& home)
{
    const QDir directory(home.path());
    for (const char* const folder : {"Desktop", "Documents", "config", "cache", "data"}) {
        directory.mkdir(QString::fromLatin1(folder));
    }
    qputenv("HOME", directory.path().toUtf8());
    qputenv("USERPROFILE", directory.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", directory.filePath(QStringLiteral("config")).toUtf8());
    qputenv("XDG_CACHE_HOME", directory.filePath(QStringLiteral("cache")).toUtf8());
    qputenv("XDG_DATA_HOME", directory.filePath(QStringLiteral("data")).toUtf8());
}

} // namespace

#ifdef __SANITIZE_ADDRESS__
/** The leak checker calls this. Qt's offscreen platform does not free the screen that it makes. */
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_suppressions()
{
    return "leak:libqoffscreen\n";
}
#endif

int morvane::test::runTests(int argc, char** argv)
{
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QTemporaryDir home;
    if (!home.isValid()) {
        std::fprintf(stderr, "cannot make a temporary home directory\n");
        return 1;
    }
    usePrivateHome(home);

    ::testing::InitGoogleMock(&argc, argv);
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("morvane-tests"));
    QLocale::setDefault(QLocale::c());
    return RUN_ALL_TESTS();
}
