// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLatin1String>

/**
 * The object names of the widgets in QFileDialog. They are private to Qt, so another version may have other names, and
 * findChild() returns null then.
 */
namespace morvane::ui::qtFileDialogNames {

inline const QLatin1String buttonBox("buttonBox");
inline const QLatin1String fileNameEdit("fileNameEdit");
inline const QLatin1String fileTypeCombo("fileTypeCombo");
inline const QLatin1String fileTypeLabel("fileTypeLabel");
inline const QLatin1String listView("listView");
inline const QLatin1String lookInCombo("lookInCombo");
inline const QLatin1String lookInLabel("lookInLabel");
inline const QLatin1String sidebar("sidebar");
inline const QLatin1String treeView("treeView");

} // namespace morvane::ui::qtFileDialogNames
