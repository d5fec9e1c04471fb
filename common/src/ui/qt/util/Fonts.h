#pragma once

#include "ui/qt/MorvaneUiExport.h"

#include <string>

namespace morvane::ui {

/**
 * Makes the fonts of a file available to the application.
 *
 * @param fontFile path in UTF-8. A file that Qt cannot load as a font, or that does not exist, gives one warning in
 *        Qt's message log, "Warning: Failed to load TrueType font from " and the path as given, and nothing else.
 *
 * GUI thread only, while the application object exists.
 *
 * @snippet 21-fonts-of-your-own/main.cpp fonts
 */
MORVANE_UI_EXPORT void addFontToDatabase(const std::string& fontFile);

/**
 * Does the same for every file of a directory, whatever its extension, in no particular order. Hidden files and
 * subdirectories are passed over.
 *
 * @param fontDirectory path in UTF-8, with or without a separator at its end; put as it stands, and one separator, in
 *        front of each file name. A directory that is missing or cannot be read counts as one without files. Not empty:
 *        that would list the current directory, but look for its files in the root directory.
 */
MORVANE_UI_EXPORT void addFontsToDatabase(const std::string& fontDirectory);

} // namespace morvane::ui
