#pragma once

class QString;

namespace morvane::fuzz {

/**
 * Makes, once, a QApplication without a screen and silences Qt's log. Settings and caches are in a
 * temporary directory, which goes away at the end of the process.
 */
void startQuietApplication();

/** That directory. */
QString scratchDirectory();

} // namespace morvane::fuzz
