// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/shell/TypedNames_p.h"

#include <gtest/gtest.h>

#include <QDir>

namespace {

using morvane::ui::pathsOfTypedText;
using morvane::ui::quotedNames;
using morvane::ui::typedTextOfNames;

struct Typed
{
    const char* text;
    bool severalAllowed;
    QStringList paths;
};

QStringList inFolder(const QStringList& names)
{
    QStringList paths;
    for (const QString& name : names) {
        paths.append(QDir::rootPath() + QStringLiteral("data/") + name);
    }
    return paths;
}

QStringList paths(const char* text, bool severalAllowed)
{
    return pathsOfTypedText(QString::fromUtf8(text), QDir::rootPath() + QStringLiteral("data"), severalAllowed);
}

TEST(TypedNames, areOneNameOrSeveralInQuotes)
{
    const QString a = QStringLiteral("a.txt");
    const QString b = QStringLiteral("b c.txt");
    const Typed table[] = {{"a.txt", false, {a}}, {"a.txt", true, {a}}, {"b c.txt", true, {b}},
        {"\"a.txt\"", false, {a}}, {"\"a.txt\"", true, {a}}, {" \"a.txt\" ", false, {a}},
        {"\"a.txt\" \"b c.txt\"", true, {a, b}}, {"\"a.txt\" \"\" \"b c.txt\"", true, {a, b}},
        {"\"a.txt\" \"  \"", true, {a}}, {"\"a.txt", true, {a}}, {"\"a.txt\" \"b c.txt", true, {a, b}},
        {"\"\"", true, {}}, {"\"\"", false, {}}, {"", false, {}}, {"  ", true, {}}};
    for (const Typed& row : table) {
        EXPECT_EQ(paths(row.text, row.severalAllowed), inFolder(row.paths)) << row.text << " " << row.severalAllowed;
    }
}

TEST(TypedNames, keepTheirQuotesWhereOneNameIsAllowed)
{
    for (const char* const text : {"\"a\" \"b\"", "\"a\"b", "\"a", "a\"b\""}) {
        EXPECT_EQ(paths(text, false), inFolder({QString::fromUtf8(text)})) << text;
    }
}

TEST(TypedNames, mayHaveQuotesOfTheirOwn)
{
    const QString said = QStringLiteral("he said \"hi\".txt");
    const QString first = QStringLiteral("\"q\".txt");
    for (const QStringList& names : {QStringList({said}), QStringList({first}), QStringList({QStringLiteral("\"q\"")}),
             QStringList({said, first, QStringLiteral("a.txt")})}) {
        const QString text = typedTextOfNames(names);
        EXPECT_EQ(paths(text.toUtf8().constData(), true), inFolder(names)) << text.toStdString();
    }
    EXPECT_EQ(paths("\"q\".txt", true), inFolder({first})) << "as a click on the file writes it";
}

TEST(TypedNames, areListedOnlyWhereTheWholeTextIsAList)
{
    EXPECT_EQ(quotedNames(QStringLiteral("\"/x y/a.txt\" \"b.txt\" ")),
        QStringList({QStringLiteral("/x y/a.txt"), QStringLiteral("b.txt")}));
    EXPECT_EQ(quotedNames(QStringLiteral("\"a.txt\"   \"b.txt\"")),
        QStringList({QStringLiteral("a.txt"), QStringLiteral("b.txt")}));
    for (const char* const text : {"", "\"", "a.txt", "/x/\"a\" \"b\"", "\"a.txt\" b.txt", "\"a\".txt"}) {
        EXPECT_TRUE(quotedNames(QString::fromUtf8(text)).isEmpty()) << text;
    }
}

TEST(TypedNames, beginAtTheHomeDirectoryWithATilde)
{
    EXPECT_EQ(paths("~", false), QStringList(QDir::homePath()));
    EXPECT_EQ(paths("~/a.txt", false), QStringList(QDir::homePath() + QStringLiteral("/a.txt")));
    EXPECT_EQ(paths("~a.txt", false), inFolder({QStringLiteral("~a.txt")}));
}

TEST(TypedNames, areMadeAbsoluteAndClean)
{
    EXPECT_EQ(paths("x/../a.txt", false), inFolder({QStringLiteral("a.txt")}));
    const QString absolute = QDir::rootPath() + QStringLiteral("other/a.txt");
    EXPECT_EQ(paths(absolute.toUtf8().constData(), false), QStringList(absolute));
    EXPECT_EQ(paths(":a.txt", false), inFolder({QStringLiteral(":a.txt")})) << "nothing within the program";
}

TEST(TypedNames, areTypedAsTheyAreRead)
{
    EXPECT_EQ(typedTextOfNames({QStringLiteral("a b.txt")}), QStringLiteral("a b.txt"));
    const QStringList several{QStringLiteral("a.txt"), QStringLiteral("b c.txt")};
    EXPECT_EQ(typedTextOfNames(several), QStringLiteral("\"a.txt\" \"b c.txt\""));
    EXPECT_EQ(paths(typedTextOfNames(several).toUtf8().constData(), true), inFolder(several));
}

} // namespace
