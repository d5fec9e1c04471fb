// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

namespace morvane::ui {

/** The window calls these operations while it runs. Each of them may end the run or destroy the window. */
class FileDialogObserver
{
public:
    enum class OverwriteAnswer
    {
        Ask,
        Accept,
        Refuse
    };

    virtual ~FileDialogObserver() = default;
    virtual bool mayEnterFolder(const QString& folder) = 0;
    virtual void onFolderChanged(const QString& folder) = 0;
    virtual void onSelectionChanged() = 0;
    virtual void onTypeChanged(int index) = 0;
    virtual OverwriteAnswer mayOverwrite(const QString& path) = 0;
    virtual bool mayAccept(const QStringList& paths) = 0;
};

} // namespace morvane::ui
