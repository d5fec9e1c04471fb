#pragma once

#include "e2e/Accessible.h"
#include "e2e/DesktopProcess.h"
#include "e2e/Screen.h"

#include <QProcessEnvironment>

#include <memory>

namespace morvane::test {

/** An X server of one's own with a window manager, a session bus and the accessibility bus. Nothing of it is shared. */
class Desktop
{
public:
    Desktop();
    ~Desktop();
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    /** What is not installed of that which a desktop takes; empty when nothing is missing. */
    static QStringList missingPrograms();

    /** Starts it all and waits until it can be used; what went wrong, empty when nothing did. */
    QString start();
    /** The same without the buses, for programs that need only a screen. */
    QString startScreen();
    /** Ends it all, with what its programs have started; false when something of that goes on. */
    bool end();

    Screen& screen() { return *m_screen; }
    /** The environment for programs on this desktop. */
    const QProcessEnvironment& environment() const { return m_environment; }
    /** A program on this desktop. Null when it does not start. */
    std::unique_ptr<DesktopProcess> launch(const QString& program, const QStringList& arguments);
    /** The accessible root of the running program with this name, waiting for it. */
    std::optional<Accessible> application(const QString& name);

private:
    /** Runs the steps until one of them fails; what went wrong. */
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
