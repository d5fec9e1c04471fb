// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The input of the Shell made of Qt's widgets, from its callers and from the name field: 16-bit text, parsing names and
// typed names.
#include "support/FuzzInput.h"
#include "support/QuietApplication.h"
#include "support/Require.h"
#include "ui/qt/dialogs/shell/ShellText_p.h"
#include "ui/qt/dialogs/shell/TypedNames_p.h"
#include "ui/qt/dialogs/shell/WidgetShellItem_p.h"

#include <QDir>

namespace {

using morvane::fuzz::require;
using namespace morvane::ui;

/** Replaces lone surrogates. */
QString wellFormed(const QString& text)
{
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        const bool pair = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        if (pair) {
            result += text[i++];
        }
        result += !pair && text[i].isSurrogate() ? QChar(QChar::ReplacementCharacter) : text[i];
    }
    return result;
}

void checkText(const QString& text)
{
    const QString expected = wellFormed(text);
    require(toQString(toShellString(text)) == expected, "text goes to the Shell and back");
    // Where a unit of wide text holds a whole character, there are no pairs.
    require(toQString(toShellString(text.toStdWString())) == expected, "wide text goes to the Shell and back");
    const QString cut = text.left(text.indexOf(QChar::Null));
    const ShellString units(reinterpret_cast<const WCHAR*>(text.utf16()), static_cast<std::size_t>(text.size()));
    require(toQString(units.c_str()) == cut, "text from the Shell ends at its NUL");
    // QString::fromUtf8() leaves out a byte order mark, but only at the very beginning.
    require(QString::fromUtf8(("x" + toUtf8(units.c_str())).c_str()) == QLatin1Char('x') + wellFormed(cut),
        "and is the same in UTF-8");
}

void checkTypedNames(const QString& text, bool several)
{
    const QString folder = QStringLiteral("/some/folder");
    const QStringList paths = pathsOfTypedText(text, folder, several);
    require(several || paths.size() <= 1, "one name where several are not allowed");
    for (const QString& path : paths) {
        require(QDir::isAbsolutePath(path), "typed names give absolute paths");
        require(QDir::cleanPath(path) == path, "without dots");
    }
}

void checkNamesGoThere(const QStringList& names)
{
    QStringList expected;
    for (const QString& name : names) {
        expected += pathsOfTypedText(name, QStringLiteral("/f"), false);
    }
    require(pathsOfTypedText(typedTextOfNames(names), QStringLiteral("/f"), true) == expected,
        "names that were put into the field mean themselves");
}

void checkItem(const QString& name)
{
    const QString path = pathOfParsingName(name);
    require(QDir::isAbsolutePath(path), "a parsing name gives an absolute path");
    require(pathOfParsingName(path) == path || path.contains(QLatin1Char('\\')), "and is settled then");
    const auto item = makeShellItem(path);
    if (path != wellFormed(path)) {
        return; // no name of a file either
    }
    require(pathOfShellItem(item.get()) == path, "an item knows its path");
    ComPtr<IShellItem> parent;
    if (SUCCEEDED(item->GetParent(parent.put()))) {
        require(QDir::isAbsolutePath(pathOfShellItem(parent.get())), "a parent has a path");
    }
    int order = -1;
    item->Compare(item.get(), 0, &order);
    require(order == 0, "an item is itself");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    morvane::fuzz::startQuietApplication();
    morvane::fuzz::FuzzInput input(data, size);
    const int options = input.below(4);
    const std::string bytes = input.rest();
    const QString text = (options & 1) != 0
                             ? morvane::fuzz::fromUtf8(bytes)
                             : QString(reinterpret_cast<const QChar*>(
                                           QByteArray(bytes.data(), static_cast<int>(bytes.size())).constData()),
                                   static_cast<int>(bytes.size() / 2));
    checkText(text);
    checkTypedNames(text, (options & 2) != 0);
    QString name = text;
    name.remove(QChar::Null); // no name of a file has one
    if (!name.isEmpty()) {
        checkItem(name);
    }
    QStringList names;
    for (const QString& piece : name.remove(QLatin1Char('"')).split(QLatin1Char('\n'))) {
        if (!piece.trimmed().isEmpty()) {
            names.append(piece);
        }
    }
    if (!names.isEmpty()) {
        checkNamesGoThere(names);
    }
    return 0;
}
