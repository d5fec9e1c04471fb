// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/SidebarPlaces_p.h"

#include <QStringList>

#include <vector>

namespace morvane::ui {

/** One entry of the list of file types. */
struct FileTypeEntry
{
    QString description;
    QStringList patterns; ///< wildcards; empty shows every file
};

/** The settings that a run of the dialog starts with. */
struct FileDialogSettings
{
    bool saving = false;
    bool picksFolders = false;
    bool allowsSeveral = false; ///< in a save dialog, several names can be typed, but not picked
    bool fileMustExist = false;
    bool pathMustExist = false;
    bool asksBeforeOverwriting = false;
    bool showsHidden = false;
    bool usesWidgets = false; ///< never the desktop's own dialog
    QString title;            ///< empty: Qt's own
    QString acceptLabel;      ///< empty: Qt's own
    QString fileNameLabel;    ///< empty: Qt's own
    QString folder;           ///< path of an existing directory
    QString fileName;
    bool fileNameIsTyped = false; ///< fileName is a wildcard that the user has typed in an earlier run
    QString defaultSuffix;        ///< added to names without suffix; empty: none
    SidebarPlaces places;
    std::vector<FileTypeEntry> types;
    int typeIndex = 0;
};

} // namespace morvane::ui
