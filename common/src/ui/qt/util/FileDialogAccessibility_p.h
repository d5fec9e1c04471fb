#pragma once

class QFileDialog;

namespace morvane::ui {

/**
 * Lets the keyboard and assistive software reach the lists of a file dialog that consists of widgets: Tab stops at the
 * types, and the lists of folders and of types take their names from the labels beside them. Does nothing to a dialog
 * that the desktop draws. May be called again.
 */
void makeListsReachable(const QFileDialog& dialog);

} // namespace morvane::ui
