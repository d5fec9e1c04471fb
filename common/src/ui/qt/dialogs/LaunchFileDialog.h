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
 * @param[out] filterIndex   set to the position of the chosen filter in @p nameFilters, or -1, when the user accepts,
 *                           else left alone. A filter that the user edited by typing a wildcard keeps its position.
 * @param caption            window title
 * @param nameFilters        one filter an entry, `Images (*.png *.jpg)`; with none the function returns false at once
 * @param initialSelection   paths to start at; the dialog opens in the directory of the first, which is named in it,
 *                           or all of them when several may be picked; by the native dialog without their directories.
 *                           The files may have gone; for a directory that has gone the dialog chooses one. May be
 *                           empty.
 * @param saveMode           a save dialog; the file need not exist
 * @param allowMultiple      lets the user pick several existing files; in save mode as many as the dialog takes there,
 *                           at least one
 * @param initialFilterIndex position in @p nameFilters to start with; outside of it no filter is selected
 * @return whether the user accepted; @p files then has at least one file
 */
MORVANE_UI_EXPORT bool LaunchFileDialog(std::vector<std::string>& files, int& filterIndex, const std::string& caption,
    const std::vector<std::string>& nameFilters, const std::vector<std::string>& initialSelection, bool saveMode,
    bool allowMultiple, int initialFilterIndex);

} // namespace morvane::ui
