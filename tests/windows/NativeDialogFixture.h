// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/ExtendedWinFileDialog.h"
#include "windows/DialogUser.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <memory>
#include <string>

namespace morvane::test {

/** The Shell's dialog on the window of a host, in a directory of its own whose path has unusual characters. */
class NativeDialogTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_directory.isValid());
        m_window.resize(300, 200);
        m_window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_window));
    }

    QString directory() const { return m_directory.path(); }
    /** In the form in which the Shell reports paths. */
    QString path(const QString& name) const { return QDir::toNativeSeparators(directory() + u'/' + name); }
    void makeFile(const QString& name) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    void makeFolder(const QString& name) const { ASSERT_TRUE(QDir(directory()).mkdir(name)); }

    std::unique_ptr<ExtendedWinFileDialog> makeDialog(QFileDialog::AcceptMode mode,
        const std::string& filter = "Release v1.dat (*)", const std::string& helpTopic = "", bool useAcceptMenu = false)
    {
        return std::make_unique<ExtendedWinFileDialog>(
            m_window, "Native", directory().toStdString(), filter, helpTopic, mode, useAcceptMenu);
    }

    static QDialog::DialogCode run(ExtendedWinFileDialog& dialog, DialogUser::Script script)
    {
        const DialogUser user(std::move(script));
        return dialog.exec();
    }

    QTemporaryDir m_directory{QDir::tempPath() + u'/' + QStringLiteral(u"写真 \U0001F4F7 XXXXXX")};
    QWidget m_window;
};

} // namespace morvane::test
