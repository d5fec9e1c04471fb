// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "e2e/DesktopProcess.h"

#include "e2e/Eventually.h"

#include <csignal>
#include <sys/prctl.h>
#include <unistd.h>

namespace morvane::test {

namespace {

constexpr int secondsToEnd = 3;

}

DesktopProcess::~DesktopProcess()
{
    const auto group = static_cast<pid_t>(processId());
    if (group > 0) {
        terminate();
        waitForFinished(secondsToEnd * 1000);
        ::kill(-group, SIGKILL);
        waitForFinished(secondsToEnd * 1000);
    }
}

bool DesktopProcess::run(const QString& program, const QStringList& arguments)
{
    start(program, arguments);
    return waitForStarted(timeLimitMs);
}

QByteArray DesktopProcess::firstLine()
{
    while (!canReadLine() && waitForReadyRead(timeLimitMs)) {
    }
    return readLine().trimmed();
}

void DesktopProcess::prepareChild()
{
    ::setpgid(0, 0);
    // The tests may be killed when they take too long; this process must end then, too.
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
}

} // namespace morvane::test
