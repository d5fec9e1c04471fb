// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

namespace morvane::ui {

/**
 * The names in a list of names in double quotes, such as `"a.dat" "b c.dat"`. White space around the list is ignored.
 * Empty if the text is not such a list. A name may contain quotes, but not two quotes with only white space between.
 */
QStringList quotedNames(const QString& text);

/**
 * The absolute paths for the text of the name field, in @p folder. If several names are allowed, the text may be a list
 * of names in double quotes. Otherwise it is one name, which may be in double quotes. `~` is the home directory.
 */
QStringList pathsOfTypedText(const QString& text, const QString& folder, bool severalAllowed);

/** The text for @p names. Each name is in double quotes, except a single name that does not begin with a quote. */
QString typedTextOfNames(const QStringList& names);

} // namespace morvane::ui
