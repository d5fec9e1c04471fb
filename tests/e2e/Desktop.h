// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "e2e/Accessible.h"
#include "e2e/DesktopProcess.h"
#include "e2e/Screen.h"

#include <QProcessEnvironment>

#include <memory>

namespace morvane::test {

/** A private X server with a window manager, a session bus and the accessibility bus. No other test shares them. */
class Desktop
{
public:
    Desktop();
    ~Desktop();
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    /** The programs that a desktop needs and that are not installed. */
    static QStringList missingPrograms();

    /** Starts all parts and waits until they can be used. Returns an error message, empty on success. */
    QString start();
    /** The same without the buses, for programs that need only a screen. */
    QString startScreen();
    /** Ends all parts and the programs that they have started; false when one of these programs still runs. */
    bool end();

    Screen& screen() { return *m_screen; }
    /** The environment for programs on this desktop. */
    const QProcessEnvironment& environment() const { return m_environment; }
    /** A program on this desktop. Null when it does not start. */
    std::unique_ptr<DesktopProcess> launch(const QString& program, const QStringList& arguments);
    /** Waits for the running program with this name and returns its accessible root. */
    std::optional<Accessible> application(const QString& name);

private:
    /** Runs the steps until one of them fails, and returns its error message. */
    QString run(std::initializer_list<QString (Desktop::*)()> steps);
    QString startServer();
    QString startBus();
    QString connectAccessibility();
    QString startWindowManager();

    QProcessEnvironment m_environment;
    // Ended in reverse order: the clients before the server.
    std::unique_ptr<DesktopProcess> m_server;
    std::unique_ptr<DesktopProcess> m_bus;
    std::unique_ptr<DesktopProcess> m_windowManager;
    std::unique_ptr<Screen> m_screen;
    std::optional<QDBusConnection> m_accessibility;
};

} // namespace morvane::test
