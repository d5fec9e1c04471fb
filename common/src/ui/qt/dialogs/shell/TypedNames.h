#pragma once

#include <QStringList>

namespace morvane::ui {

/**
 * The absolute paths that the text of the name field means in @p folder. Where several names are allowed, names in
 * double quotes are separate names; otherwise, and without quotes, the text is one name. `~` is the home directory.
 */
QStringList pathsOfTypedText(const QString& text, const QString& folder, bool severalAllowed);

/** The text that means @p names: one name as it is, several in double quotes. */
QString typedTextOfNames(const QStringList& names);

} // namespace morvane::ui
