#pragma once

class QFileDialog;

namespace morvane::ui {

/**
 * Gives the lists of a file dialog that consists of widgets widths in which nothing is cut: the sidebar as wide as its
 * places, the columns of size, type and date as wide as what they hold, and the names the rest. That happens when the
 * lists are shown, and once more when the first folder has been read; afterwards the widths are the user's. The window
 * keeps its size. Does nothing to a dialog that the desktop draws. May be called again.
 *
 * Internal, not installed.
 */
void showListsWhole(QFileDialog& dialog);

/** Shows the row with the types where there are any to choose: not in a dialog for directories. Internal. */
void showTypesOfFilesOnly(const QFileDialog& dialog);

} // namespace morvane::ui
