// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "e2e/Desktop.h"

#include "e2e/Eventually.h"

#include <QDBusMessage>
#include <QStandardPaths>

#include <cerrno>
#include <sys/prctl.h>
#include <sys/wait.h>

namespace morvane::test {

namespace {

const QString sessionConnection = QStringLiteral("morvane-e2e-session");
const QString accessibilityConnection = QStringLiteral("morvane-e2e-accessibility");

bool noChildIsLeft()
{
    while (::waitpid(-1, nullptr, WNOHANG) > 0) {
    }
    return ::waitpid(-1, nullptr, WNOHANG) < 0 && errno == ECHILD;
}

} // namespace

Desktop::Desktop() : m_environment(QProcessEnvironment::systemEnvironment())
{
    for (const char* const variable : {"QT_QPA_PLATFORM", "WAYLAND_DISPLAY", "XAUTHORITY", "QT_SCALE_FACTOR",
             "QT_QPA_PLATFORMTHEME", "XDG_CURRENT_DESKTOP", "DESKTOP_SESSION", "AT_SPI_BUS_ADDRESS"}) {
        m_environment.remove(QString::fromLatin1(variable));
    }
    m_environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    m_environment.insert(QStringLiteral("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"), QStringLiteral("1"));
    // Programs that the buses start run a moment longer than the buses. As subreaper, this process can wait for them.
    ::prctl(PR_SET_CHILD_SUBREAPER, 1);
    m_environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_environment.value(QStringLiteral("HOME")));
}

Desktop::~Desktop()
{
    end();
}

bool Desktop::end()
{
    m_accessibility.reset();
    QDBusConnection::disconnectFromBus(accessibilityConnection);
    QDBusConnection::disconnectFromBus(sessionConnection);
    m_screen.reset();
    m_windowManager.reset();
    m_bus.reset();
    m_server.reset();
    return eventually(noChildIsLeft);
}

QStringList Desktop::missingPrograms()
{
    QStringList missing;
    for (const char* const program : {"Xvfb", "openbox", "dbus-daemon"}) {
        if (QStandardPaths::findExecutable(QString::fromLatin1(program)).isEmpty()) {
            missing.append(QString::fromLatin1(program));
        }
    }
    return missing;
}

QString Desktop::start()
{
    return run(
        {&Desktop::startServer, &Desktop::startBus, &Desktop::connectAccessibility, &Desktop::startWindowManager});
}

QString Desktop::startScreen()
{
    return run({&Desktop::startServer, &Desktop::startWindowManager});
}

QString Desktop::run(std::initializer_list<QString (Desktop::*)()> steps)
{
    for (const auto step : steps) {
        const QString failure = (this->*step)();
        if (!failure.isEmpty()) {
            return failure;
        }
    }
    return QString();
}

std::unique_ptr<DesktopProcess> Desktop::launch(const QString& program, const QStringList& arguments)
{
    auto process = std::make_unique<DesktopProcess>();
    process->setProcessEnvironment(m_environment);
    process->setProcessChannelMode(QProcess::SeparateChannels);
    return process->run(program, arguments) ? std::move(process) : nullptr;
}

QString Desktop::startServer()
{
    m_server = launch(
        QStringLiteral("Xvfb"), {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                                    QStringLiteral("0"), QStringLiteral("1600x1200x24"), QStringLiteral("-nolisten"),
                                    QStringLiteral("tcp"), QStringLiteral("-noreset")});
    const QByteArray number = m_server ? m_server->firstLine() : QByteArray();
    if (number.isEmpty()) {
        return QStringLiteral("the X server does not start");
    }
    m_environment.insert(QStringLiteral("DISPLAY"), QStringLiteral(":") + QString::fromLatin1(number));
    m_screen = std::make_unique<Screen>(":" + number);
    return m_screen->isOpen() ? QString() : QStringLiteral("the X server has no XTEST");
}

QString Desktop::startBus()
{
    m_bus = launch(QStringLiteral("dbus-daemon"),
        {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address=1")});
    const QByteArray address = m_bus ? m_bus->firstLine() : QByteArray();
    m_environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QString::fromLatin1(address));
    return address.isEmpty() ? QStringLiteral("the session bus does not start") : QString();
}

QString Desktop::connectAccessibility()
{
    QDBusConnection session = QDBusConnection::connectToBus(
        m_environment.value(QStringLiteral("DBUS_SESSION_BUS_ADDRESS")), sessionConnection);
    // The bus starts this service on demand.
    const QDBusMessage answer =
        session.call(QDBusMessage::createMethodCall(QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
                         QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress")),
            QDBus::Block, timeLimitMs);
    if (answer.type() != QDBusMessage::ReplyMessage) {
        return QStringLiteral("no accessibility bus (at-spi2-core): ") + answer.errorMessage();
    }
    m_accessibility = QDBusConnection::connectToBus(answer.arguments().value(0).toString(), accessibilityConnection);
    return m_accessibility->isConnected() ? QString() : m_accessibility->lastError().message();
}

QString Desktop::startWindowManager()
{
    m_windowManager = launch(QStringLiteral("openbox"), {QStringLiteral("--sm-disable")});
    const bool managed = m_windowManager && eventually([this] { return m_screen->isManaged(); });
    return managed ? QString() : QStringLiteral("the window manager does not start");
}

std::optional<Accessible> Desktop::application(const QString& name)
{
    std::optional<Accessible> found;
    eventually([&] {
        for (const Accessible& program : Accessible::desktop(*m_accessibility).children()) {
            if (program.name() == name) {
                found = program;
            }
        }
        return found.has_value();
    });
    return found;
}

} // namespace morvane::test
