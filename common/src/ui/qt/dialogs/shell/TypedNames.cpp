#include "ui/qt/dialogs/shell/TypedNames.h"

#include <QDir>

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

QString typedTextOfNames(const QStringList& names)
{
    return names.size() == 1 ? names.first()
                             : QLatin1Char('"') + names.join(QStringLiteral("\" \"")) + QLatin1Char('"');
}

} // namespace morvane::ui
