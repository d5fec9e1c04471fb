// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The warnings of debug builds when a GUI class is used in another thread.
#include "support/MessageLog.h"
#include "ui/qt/controls/IntegralSpinBox.h"
#include "ui/qt/dialogs/LaunchFileDialog.h"
#include "ui/qt/util/CopyHandlerAbstract.h"
#include "ui/qt/util/MainWindow.h"

#include <gtest/gtest.h>

#include <QThread>

#include <functional>
#include <memory>

namespace morvane::test {

namespace {

#ifdef QT_NO_DEBUG
constexpr bool tells = false;
#else
constexpr bool tells = true;
#endif

/** Runs `action` in a thread of its own and returns the warnings. */
QStringList warningsInAnotherThread(const std::function<void()>& action)
{
    const MessageLog log;
    const std::unique_ptr<QThread> thread(QThread::create(action));
    thread->start();
    thread->wait();
    return log.texts(QtWarningMsg);
}

QStringList warningOf(const char* what)
{
    return tells ? QStringList(QStringLiteral("Warning: %1 is used outside the GUI thread").arg(what)) : QStringList();
}

class SilentCopyHandler : public ui::CopyHandlerAbstract
{
public:
    using CopyHandlerAbstract::CopyHandlerAbstract;
    void copyToClipboard() override {}
};

} // namespace

TEST(GuiThread, aFunctionCalledInAnotherThreadIsToldInOneLine)
{
    EXPECT_EQ(warningsInAnotherThread([] { ui::findMainWindow(false); }), warningOf("findMainWindow"));
}

TEST(GuiThread, aDialogInAnotherThreadIsTold)
{
    const auto launch = [] {
        std::vector<std::string> files;
        int index = 0;
        EXPECT_FALSE(ui::LaunchFileDialog(files, index, "Caption", {}, {}, false, false, 0));
    };
    EXPECT_EQ(warningsInAnotherThread(launch), warningOf("LaunchFileDialog"));
}

TEST(GuiThread, anObjectMadeInAnotherThreadIsTold)
{
    const auto make = [] {
        QObject watched;
        new SilentCopyHandler(watched);
    };
    EXPECT_EQ(warningsInAnotherThread(make), warningOf("CopyHandlerAbstract"));
}

TEST(GuiThread, theGuiThreadItselfIsNot)
{
    const MessageLog log;
    ui::findMainWindow(false);
    QObject watched;
    new SilentCopyHandler(watched);
    const ui::IntegralSpinBox spinBox(nullptr);
    EXPECT_EQ(log.texts(QtWarningMsg), QStringList());
}

} // namespace morvane::test
