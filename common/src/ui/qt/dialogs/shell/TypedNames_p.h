#pragma once

#include <QStringList>

namespace morvane::ui {

/**
 * The names in a text that is a list of names in double quotes, `"a.dat" "b c.dat"`, blanks around it or not. Empty
 * when the text is no such list. A name may have quotes of its own, but not two with only blanks in between.
 */
QStringList quotedNames(const QString& text);

/**
 * The absolute paths that the text of the name field means in @p folder. Where several names are allowed, names in
 * double quotes are separate names; otherwise, and without quotes, the text is one name. `~` is the home directory.
 */
QStringList pathsOfTypedText(const QString& text, const QString& folder, bool severalAllowed);

/** The text that means @p names: several in double quotes, one as it is unless it begins with a quote itself. */
QString typedTextOfNames(const QStringList& names);

} // namespace morvane::ui
