// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/MorvaneUiExport.h"

#include <string>
#include <vector>

namespace morvane::ui {

/**
 * Asks the user for files with one call. ExtendedFileDialog's switch determines which dialog is shown. Its parent is
 * the active window, if there is one. All text is UTF-8.
 *
 * @snippet 37-files-as-std-strings/main.cpp launch
 *
 * @param[out] files         set to the chosen files if the user accepts; otherwise not changed
 * @param[out] filterIndex   set if the user accepts, otherwise not changed: the position of the chosen filter, or -1
 *                           if none is chosen. It is the position in the dialog's list of filters. This list is equal
 *                           to @p nameFilters if each entry is one filter: an entry that contains `;;` counts as
 *                           several filters, and the native dialog ignores an empty entry. Among equal filters it is
 *                           the first one. A filter that the user edited by typing a wildcard keeps its position.
 * @param caption            window title
 * @param nameFilters        one filter for each entry, such as `Images (*.png *.jpg)`; if empty, the function
 *                           returns false at once
 * @param initialSelection   paths; may be empty. The dialog opens in the directory of the first path. The name field
 *                           shows the first path, or all paths if @p allowMultiple is true; the native dialog shows
 *                           them without their directories. The files need not exist. If the directory does not exist,
 *                           the dialog chooses one.
 * @param saveMode           a save dialog; the file need not exist
 * @param allowMultiple      the user may pick several existing files; in save mode, as many as the dialog allows,
 *                           at least one
 * @param initialFilterIndex position in @p nameFilters of the initial filter; if it is out of range, the first filter
 * @return whether the user accepted; if true, @p files has at least one file
 */
MORVANE_UI_EXPORT bool LaunchFileDialog(std::vector<std::string>& files, int& filterIndex, const std::string& caption,
    const std::vector<std::string>& nameFilters, const std::vector<std::string>& initialSelection, bool saveMode,
    bool allowMultiple, int initialFilterIndex);

} // namespace morvane::ui
