// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "support/FileDialogDriver.h"
#include "support/ModalScript.h"
#include "support/QtPrinters.h"
#include "support/RecordingSettings.h"

#include "host/InstanceOverride.h"
#include "ui/qt/dialogs/ExtendedFileDialog.h"
#include "ui/qt/dialogs/LaunchFileDialog.h"
#include "ui/qt/dialogs/shell/WidgetShell_p.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <optional>

namespace morvane::test {

/** A folder with the files a.dat, b.dat, c.txt and the folder inner, and a user in front of the launched dialog. */
class LaunchFileDialogTest : public ::testing::Test
{
protected:
    using Texts = std::vector<std::string>;

    explicit LaunchFileDialogTest(bool native) : m_before(ExtendedFileDialog::useNativeFileDialog())
    {
        ExtendedFileDialog::setUseNativeFileDialog(native);
        if (QGuiApplication::platformName() == QLatin1String("windows")) {
            m_widgets.emplace(m_shell); // the system's own dialog does not receive Qt events
        }
        for (const char* const name : {"a.dat", "b.dat", "c.txt"}) {
            QFile file(path(name));
            EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        }
        EXPECT_TRUE(QDir(m_folder.path()).mkdir(QStringLiteral("inner")));
    }
    ~LaunchFileDialogTest() override { ExtendedFileDialog::setUseNativeFileDialog(m_before); }

    QString path(const char* name) const { return m_folder.filePath(QString::fromUtf8(name)); }
    std::string text(const char* name) const { return path(name).toStdString(); }

    /** Launches while the user acts; cancels if the dialog is still open then. */
    bool launch(const Texts& selection, bool save, bool several, int index, std::function<void(FileDialogDriver&)> act)
    {
        ModalScript user;
        user.on<QFileDialog>(FileDialogDriver::playing(std::move(act)));
        const bool accepted =
            ui::LaunchFileDialog(files, filterIndex, "Caption", filters, selection, save, several, index);
        EXPECT_TRUE(user.finished());
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        return accepted;
    }

    Texts filters{"Data (*.dat)", "Text (*.txt)", "All (*)"};
    Texts files{"old", "older", "oldest"};
    int filterIndex = -77;
    ui::WidgetShell m_shell{ui::WidgetShell::Appearance::AlwaysWidgets};
    std::optional<ui::ShellOverride> m_widgets; ///< set where the default Shell is not made of widgets

private:
    const bool m_before;
    RecordingSettings m_settings;
    InstanceOverride<ApplicationSettings> m_settingsOverride{m_settings};
    QTemporaryDir m_folder;
};

} // namespace morvane::test
