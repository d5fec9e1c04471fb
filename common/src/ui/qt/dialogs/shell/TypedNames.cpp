#include "ui/qt/dialogs/shell/TypedNames.h"

#include <QDir>

#include <algorithm>

namespace morvane::ui {

namespace {

QString absolutePath(QString name, const QString& folder)
{
    name = QDir::fromNativeSeparators(name);
    if (name == QLatin1String("~") || name.startsWith(QLatin1String("~/"))) {
        name.replace(0, 1, QDir::homePath());
    }
    // Qt takes a colon in front for something within the program itself.
    const bool ordinary = name.startsWith(QLatin1Char(':'));
    return QDir::cleanPath(ordinary ? folder + QLatin1Char('/') + name : QDir(folder).absoluteFilePath(name));
}

bool isWildcard(const QString& piece)
{
    return piece.contains(QLatin1Char('*')) || piece.contains(QLatin1Char('?'));
}

QStringList quotedNames(const QString& text)
{
    QStringList names;
    const QStringList pieces = text.split(QLatin1Char('"'));
    for (int i = 1; i < pieces.size(); i += 2) {
        if (!pieces.at(i).isEmpty()) {
            names.append(pieces.at(i));
        }
    }
    return names;
}

} // namespace

QStringList pathsOfTypedText(const QString& text, const QString& folder, bool severalAllowed)
{
    QStringList names(text);
    const QString trimmed = text.trimmed();
    const int quotes = trimmed.count(QLatin1Char('"'));
    const bool oneQuotedName = quotes == 2 && trimmed.endsWith(QLatin1Char('"'));
    if (trimmed.startsWith(QLatin1Char('"')) && (severalAllowed || oneQuotedName)) {
        names = quotedNames(trimmed);
    }
    QStringList paths;
    for (const QString& name : names) {
        if (!name.trimmed().isEmpty()) {
            paths.append(absolutePath(name, folder));
        }
    }
    return paths;
}

QStringList patternsOfTypedText(const QString& text)
{
    QStringList patterns;
    for (const QString& part : QString(text).remove(QLatin1Char('"')).split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const QStringList pieces = part.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        const bool separate = std::all_of(pieces.begin(), pieces.end(), isWildcard);
        patterns += separate ? pieces : QStringList(part.trimmed());
    }
    // Qt takes it for names with a dot.
    std::replace(patterns.begin(), patterns.end(), QStringLiteral("*.*"), QStringLiteral("*"));
    return patterns;
}

QString typedTextOfNames(const QStringList& names)
{
    return names.size() == 1 ? names.first()
                             : QLatin1Char('"') + names.join(QStringLiteral("\" \"")) + QLatin1Char('"');
}

} // namespace morvane::ui
