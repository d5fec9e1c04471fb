// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "support/FileDialogDriver.h"
#include "support/ModalScript.h"
#include "support/QtPrinters.h"
#include "support/RecordingHelpLauncher.h"
#include "support/RecordingSettings.h"
#include "testing/RecordingDialog.h"
#include "testing/RecordingShell.h"

#include "host/InstanceOverride.h"
#include "ui/qt/dialogs/ExtendedFileDialog.h"
#include "ui/qt/dialogs/QExtendedFileDialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <functional>
#include <memory>

namespace morvane::test {

inline const QString dataFilter = QStringLiteral("Data (*.dat)");
inline const QString allFilter = QStringLiteral("All (*)");

/** A facade with access to both of its sides: the calls to the Shell, or the Qt dialog below the parent. */
class ExtendedFileDialogTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_folder.isValid());
        QFile file(path("a.dat"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    void TearDown() override
    {
        ExtendedFileDialog::setUseNativeFileDialog(true);
        EXPECT_EQ(m_shell.liveObjects() + m_shell.liveStrings() + m_shell.apartments(), 0);
    }

    using Facade = std::unique_ptr<ExtendedFileDialog>;
    Facade make(bool native, QFileDialog::AcceptMode mode = QFileDialog::AcceptOpen, const std::string& help = "")
    {
        ExtendedFileDialog::setUseNativeFileDialog(native);
        return std::make_unique<ExtendedFileDialog>(
            m_parent, "Caption", m_folder.path().toStdString(), "Data (*.dat);;All (*)", help, mode);
    }
    QExtendedFileDialog* qt() { return m_parent.findChild<QExtendedFileDialog*>(); }
    /** Runs the Qt dialog and lets the user act on it. */
    int runQt(ExtendedFileDialog& dialog, const std::function<void(FileDialogDriver&)>& act)
    {
        ModalScript user;
        user.on<QFileDialog>([act](QFileDialog& window) {
            FileDialogDriver driver(window);
            act(driver);
        });
        return dialog.exec();
    }
    QString path(const char* name) const { return m_folder.filePath(QString::fromUtf8(name)); }

    RecordingShell m_shell;
    RecordingHelpLauncher m_help;
    QWidget m_parent;
    QTemporaryDir m_folder;

private:
    RecordingSettings m_settings;
    ui::ShellOverride m_shellOverride{m_shell};
    InstanceOverride<HelpLauncher> m_helpOverride{m_help};
    InstanceOverride<ApplicationSettings> m_settingsOverride{m_settings};
};

} // namespace morvane::test
