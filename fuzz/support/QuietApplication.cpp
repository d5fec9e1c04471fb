// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "support/QuietApplication.h"

#include <QApplication>
#include <QLocale>
#include <QTemporaryDir>

/** Read by the leak checker. Qt's offscreen platform does not give back the screen that it makes. */
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_suppressions()
{
    return "leak:libqoffscreen\nleak:QPlatformScreen\n";
}

namespace morvane::fuzz {

namespace {

class QuietApplication
{
public:
    QuietApplication()
    {
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        qputenv("LC_ALL", "C.UTF-8");
        qputenv("QT_QPA_PLATFORM", "offscreen");
        for (const char* const variable : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"}) {
            qputenv(variable, m_directory.path().toUtf8());
        }
        // Kept to the end of the process, like the application of a program.
        m_application = new QApplication(m_argc, m_argv);
        QLocale::setDefault(QLocale::c());
    }
    ~QuietApplication() { delete m_application; }
    QuietApplication(const QuietApplication&) = delete;
    QuietApplication& operator=(const QuietApplication&) = delete;

    QString directory() const { return m_directory.path(); }

private:
    QTemporaryDir m_directory;
    int m_argc = 1;
    char m_name[8] = "fuzzer";
    char* m_argv[2] = {m_name, nullptr};
    QApplication* m_application = nullptr;
};

const QuietApplication& application()
{
    static const QuietApplication instance;
    return instance;
}

} // namespace

void startQuietApplication()
{
    application();
}

QString scratchDirectory()
{
    return application().directory();
}

} // namespace morvane::fuzz
