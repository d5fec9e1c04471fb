// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "support/QtPrinters.h"
#include "support/RecordingHelpLauncher.h"
#include "testing/RecordingControls.h"
#include "testing/RecordingDialog.h"
#include "testing/RecordingShell.h"

#include "host/InstanceOverride.h"
#include "ui/qt/dialogs/ExtendedWinFileDialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <QWidget>

#include <functional>
#include <memory>

namespace morvane::test {

inline constexpr char customizeQuery[] = "IFileDialog::QueryInterface(IFileDialogCustomize)";

/** A Shell that records its calls, a parent and a folder. Checks at the end that nothing has leaked. */
class ExtendedWinFileDialogTest : public ::testing::Test
{
protected:
    using Dialog = std::unique_ptr<ExtendedWinFileDialog>;
    using Play = std::function<void(RecordingDialog&)>;
    using Calls = std::vector<std::string>;

    /** The arguments of a dialog except for the parent. */
    struct Arguments
    {
        std::string caption = "Measurement";
        std::string directory{};
        std::string filter{};
        std::string helpTopic{};
        bool saving = false;
        bool acceptMenu = false;
    };

    ExtendedWinFileDialogTest();
    void TearDown() override;

    Dialog make(const Arguments& arguments);
    Dialog openDialog(const std::string& filter = "");
    Dialog saveDialog(const std::string& filter = "");
    Dialog menuDialog();

    /** Runs the dialog while @p play acts on it; cancels if the dialog is still open then. */
    QDialog::DialogCode run(ExtendedWinFileDialog& dialog, const Play& play = {});
    /** The calls that @p action makes. */
    Calls callsOf(const std::function<void()>& action);
    RecordingDialog& shown() { return *m_shell.dialog(); }

    QString path(const QString& name) const { return m_folder.filePath(name); }
    /** In the form in which the dialog reports paths. */
    QString nativePath(const QString& name) const { return native(path(name)); }
    static QString native(const QString& path) { return QDir::toNativeSeparators(path); }
    std::string folder() const { return m_folder.path().toStdString(); }
    void makeFile(const QString& name) const;

    RecordingShell m_shell;
    RecordingHelpLauncher m_help;
    std::unique_ptr<QWidget> m_parent = std::make_unique<QWidget>();
    /** How often the apartment was joined minus how often it was left; it is also left after a failed join. */
    int m_expectedApartments = 0;

private:
    ui::ShellOverride m_shellOverride{m_shell};
    InstanceOverride<HelpLauncher> m_helpOverride{m_help};
    QTemporaryDir m_folder;
};

} // namespace morvane::test
