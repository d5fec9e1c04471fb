#pragma once

#include <QStringList>

namespace morvane::ui {

/**
 * The patterns of a typed wildcard. Semicolons separate them, and so do blanks where each piece is a wildcard, since
 * a name may contain blanks. `*.*` is every file.
 */
QStringList patternsOfTypedText(const QString& text);

} // namespace morvane::ui
