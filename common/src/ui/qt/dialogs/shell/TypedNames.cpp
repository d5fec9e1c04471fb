// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/shell/TypedNames_p.h"

#include <QDir>
#include <QRegularExpression>

namespace morvane::ui {

namespace {

constexpr QLatin1Char quote('"');

QString absolutePath(QString name, const QString& folder)
{
    name = QDir::fromNativeSeparators(name);
    if (name == QLatin1String("~") || name.startsWith(QLatin1String("~/"))) {
        name.replace(0, 1, QDir::homePath());
    }
    // For Qt, a name that begins with a colon is a resource of the program.
    const bool ordinary = name.startsWith(QLatin1Char(':'));
    return QDir::cleanPath(ordinary ? folder + QLatin1Char('/') + name : QDir(folder).absoluteFilePath(name));
}

/** The names of a list. The last quote of the list may be missing. Returns the whole text if it is not a list. */
QStringList typedNames(const QString& text)
{
    const QString list = text.trimmed();
    QStringList names = quotedNames(list);
    if (names.isEmpty() && list.startsWith(quote) && list.count(quote) % 2 == 1) {
        names = quotedNames(list + quote);
    }
    return names.isEmpty() ? QStringList(text) : names;
}

} // namespace

QStringList quotedNames(const QString& text)
{
    const QString list = text.trimmed();
    if (list.size() < 2 || !list.startsWith(quote) || !list.endsWith(quote)) {
        return {};
    }
    static const QRegularExpression separator(QStringLiteral("\"\\s+\""));
    return list.mid(1, list.size() - 2).split(separator);
}

QStringList pathsOfTypedText(const QString& text, const QString& folder, bool severalAllowed)
{
    const bool oneQuotedName = text.count(quote) == 2;
    const QStringList names = severalAllowed || oneQuotedName ? typedNames(text) : QStringList(text);
    QStringList paths;
    for (const QString& name : names) {
        if (!name.trimmed().isEmpty()) {
            paths.append(absolutePath(name, folder));
        }
    }
    return paths;
}

QString typedTextOfNames(const QStringList& names)
{
    if (names.size() == 1 && !names.first().startsWith(quote)) {
        return names.first();
    }
    return quote + names.join(QStringLiteral("\" \"")) + quote;
}

} // namespace morvane::ui
