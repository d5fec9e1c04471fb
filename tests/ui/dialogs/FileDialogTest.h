// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "support/FileDialogDriver.h"
#include "support/ModalScript.h"
#include "support/OverrideCursors.h"
#include "support/QtPrinters.h"
#include "support/RecordingHelpLauncher.h"
#include "support/RecordingSettings.h"

#include "host/InstanceOverride.h"
#include "ui/qt/dialogs/QExtendedFileDialog.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QWidget>

#include <functional>
#include <memory>

class QFileSystemModel;

namespace morvane::test {

/** A window to open dialogs from, a folder of its own, and recording host services. */
class FileDialogTest : public ::testing::Test
{
protected:
    using Act = std::function<void(FileDialogDriver&)>;
    using Dialog = std::unique_ptr<QExtendedFileDialog>;

    FileDialogTest();
    void TearDown() override;

    QString path(const QString& name) const { return m_folder.filePath(name); }
    QString folder() const { return m_folder.path(); }
    void makeFile(const QString& name) const;
    void makeFiles(const QStringList& names) const;
    void makeFolder(const QString& name) const;

    /** Dialogs that start in folder(). */
    Dialog openDialog(const std::string& filter = "", const std::string& helpTopic = "");
    Dialog saveDialog(const std::string& filter = "");

    /**
     * Runs the dialog and acts on it as soon as it is open; cancels it if it is still open after that. Steps for
     * message boxes can be added to @p script before the call.
     */
    static int run(QExtendedFileDialog& dialog, const Act& act);
    static int run(QExtendedFileDialog& dialog, ModalScript& script, const Act& act);

    static QFileSystemModel& fileSystemModel(const QExtendedFileDialog& dialog);

    RecordingSettings m_settings;
    RecordingHelpLauncher m_help;
    std::unique_ptr<QWidget> m_parent = std::make_unique<QWidget>();

private:
    Dialog makeDialog(const std::string& filter, const std::string& helpTopic, QFileDialog::AcceptMode mode);

    InstanceOverride<ApplicationSettings> m_settingsOverride{m_settings};
    InstanceOverride<HelpLauncher> m_helpOverride{m_help};
    QTemporaryDir m_folder;
};

} // namespace morvane::test
