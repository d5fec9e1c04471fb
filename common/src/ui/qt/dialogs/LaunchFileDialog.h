#pragma once

#include "ui/qt/MorvaneUiExport.h"

#include <string>
#include <vector>

namespace morvane::ui {

/**
 * Asks the user for files with one call. The dialog is the one that ExtendedFileDialog's switch says; its parent is the
 * active window, if there is one. All text is UTF-8.
 *
 * @snippet 01-open-files/main.cpp launch
 *
 * @param[out] files         replaced by the chosen files when the user accepts, else left alone
 * @param[out] filterIndex   set to the position of the chosen filter, or -1, when the user accepts, else left alone. It
 *                           counts the filters in the dialog's list, which are those of @p nameFilters as long as each
 *                           entry is one filter: an entry with `;;` in it counts as several, an empty one as none in
 *                           the native dialog. Of equal filters it is the first. A filter that the user edited by
 *                           typing a wildcard keeps its position.
 * @param caption            window title
 * @param nameFilters        one filter an entry, `Images (*.png *.jpg)`; with none the function returns false at once
 * @param initialSelection   paths to start at; the dialog opens in the directory of the first, which is named in it,
 *                           or all of them when several may be picked; by the native dialog without their directories.
 *                           The files may have gone; for a directory that has gone the dialog chooses one. May be
 *                           empty.
 * @param saveMode           a save dialog; the file need not exist
 * @param allowMultiple      lets the user pick several existing files; in save mode as many as the dialog takes there,
 *                           at least one
 * @param initialFilterIndex position in @p nameFilters of the filter to start with; outside of it the dialog starts
 *                           with the first one
 * @return whether the user accepted; @p files then has at least one file
 */
MORVANE_UI_EXPORT bool LaunchFileDialog(std::vector<std::string>& files, int& filterIndex, const std::string& caption,
    const std::vector<std::string>& nameFilters, const std::vector<std::string>& initialSelection, bool saveMode,
    bool allowMultiple, int initialFilterIndex);

} // namespace morvane::ui
