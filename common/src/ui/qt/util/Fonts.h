// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/MorvaneUiExport.h"
#include "ui/qt/util/QtText.h"

#include <string>

namespace morvane::ui {

/**
 * Makes the fonts of a file available to the application.
 *
 * @param fontFile path in UTF-8. If the file does not exist, or Qt cannot load it as a font, the only effect is one
 *        warning in Qt's message log: "Warning: Failed to load TrueType font from " and the path as passed.
 *
 * GUI thread only, while the application object exists.
 *
 * @snippet 21-fonts-of-your-own/main.cpp fonts
 */
MORVANE_UI_EXPORT void addFontToDatabase(const std::string& fontFile);

/**
 * Does the same for every file of a directory, with any extension, in no particular order. Hidden files and
 * subdirectories are skipped.
 *
 * @param fontDirectory path in UTF-8, with or without a separator at its end. The path of each file is this text
 *        unchanged, one separator, and the file name. A directory that does not exist or cannot be read counts as
 *        empty. The text must not be empty: an empty text would list the files of the current directory, but load them
 *        from the root directory.
 */
MORVANE_UI_EXPORT void addFontsToDatabase(const std::string& fontDirectory);

///@{
/** The same with texts of Qt, see isQtText. */
template <typename Text, IfQtText<Text> = 0>
void addFontToDatabase(const Text& fontFile)
{
    addFontToDatabase(utf8Text(fontFile));
}
template <typename Text, IfQtText<Text> = 0>
void addFontsToDatabase(const Text& fontDirectory)
{
    addFontsToDatabase(utf8Text(fontDirectory));
}
///@}

} // namespace morvane::ui
