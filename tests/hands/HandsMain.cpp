// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "e2e/Desktop.h"
#include "support/TestRun.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTemporaryDir>

#include <cstdio>

namespace {

/** One process makes the desktop and sets this variable for a second process, which runs the cases. */
constexpr const char* onDesktop = "MORVANE_HANDS_DESKTOP";
/** The scale factor of the screen that the cases run on, such as 2. */
constexpr const char* scale = "MORVANE_HANDS_SCALE";

QStringList argumentsOf(int argc, char** argv)
{
    QStringList arguments;
    for (int number = 1; number < argc; ++number) {
        arguments.append(QString::fromLocal8Bit(argv[number]));
    }
    return arguments;
}

bool isListOnly(const QStringList& arguments)
{
    return arguments.contains(QStringLiteral("--gtest_list_tests"));
}

int runCases(const QStringList& arguments, const QProcessEnvironment& environment)
{
    morvane::test::DesktopProcess cases;
    cases.setProcessEnvironment(environment);
    cases.setProcessChannelMode(QProcess::ForwardedChannels);
    if (!cases.run(QCoreApplication::applicationFilePath(), arguments)) {
        return 1;
    }
    cases.waitForFinished(-1);
    return cases.exitStatus() == QProcess::NormalExit ? cases.exitCode() : 1;
}

int runOnOwnDesktop(int argc, char** argv)
{
    const QStringList arguments = argumentsOf(argc, argv);
    const QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    const QCoreApplication application(argc, argv);
    morvane::test::Desktop desktop;
    QProcessEnvironment environment = desktop.environment();
    const QStringList missing = morvane::test::Desktop::missingPrograms();
    if (missing.isEmpty()) {
        const QString failure = desktop.startScreen();
        if (!failure.isEmpty()) {
            std::fprintf(stderr, "%s\n", qPrintable(failure));
            return 1;
        }
        environment = desktop.environment();
    } else {
        environment.insert(QStringLiteral("MORVANE_HANDS_MISSING"), missing.join(QStringLiteral(", ")));
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    }
    environment.insert(QString::fromLatin1(onDesktop), QStringLiteral("1"));
    if (qEnvironmentVariableIsSet(scale)) {
        environment.insert(QStringLiteral("QT_SCALE_FACTOR"), qEnvironmentVariable(scale));
    }
    // The leak checker would report memory of X11 libraries that are unloaded.
    environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
    const int result = runCases(arguments, environment);
    return desktop.end() ? result : 1;
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsSet(onDesktop) || isListOnly(argumentsOf(argc, argv))) {
        return morvane::test::runTests(argc, argv);
    }
    return runOnOwnDesktop(argc, argv);
}
