// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "contract/LoggingSink.h"
#include "contract/ShellDriver.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

namespace morvane::test {

/** A Shell, a folder with files, and the calls of the interfaces in a form that is easy to read in tests. */
class ShellContract : public ::testing::TestWithParam<NamedShellDriver>
{
protected:
    void SetUp() override;
    void TearDown() override;

    ui::ComPtr<IFileDialog> makeDialog(const CLSID& clsid = CLSID_FileOpenDialog);
    /** A dialog of the given kind in the folder, with a sink and the types Text (*.txt) and Data (*.dat;*.csv). */
    void prepare(const CLSID& clsid = CLSID_FileOpenDialog);
    void setTypes();
    ui::ComPtr<IShellItem> itemFor(const QString& path);
    QString pathOf(IShellItem* item);
    QString result();
    QStringList results();
    QString fileName();
    void setFileName(const QString& name);
    FILEOPENDIALOGOPTIONS options();
    void changeOptions(FILEOPENDIALOGOPTIONS set, FILEOPENDIALOGOPTIONS clear);
    UINT typeIndex();
    HRESULT show(const std::function<void(ShellUser&)>& play) { return driver->show(*dialog, play); }
    ui::Shell& shell() { return driver->shell(); }
    QString path(const QString& name) const { return folder.filePath(name); }
    void makeFile(const QString& name);

    static constexpr HRESULT cancelled = static_cast<HRESULT>(0x800704C7);

    QTemporaryDir folder;
    std::unique_ptr<ShellDriver> driver;
    std::unique_ptr<LoggingSink> sink;
    ui::ComPtr<IFileDialog> dialog;
    ui::ComPtr<IFileDialogCustomize> customize;
    DWORD cookie = 0;
};

} // namespace morvane::test
