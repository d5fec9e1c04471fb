// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/shell/TypedPatterns_p.h"

#include <gtest/gtest.h>

namespace {

struct TypedPattern
{
    const char* text;
    const char* patterns; ///< with bars in between
};

TEST(TypedPatterns, areSeparatedBySemicolonsAndByBlanksBetweenWildcards)
{
    const TypedPattern table[] = {{"*.dat", "*.dat"}, {" *.dat ", "*.dat"}, {"*.dat *.csv", "*.dat|*.csv"},
        {"*.dat;*.csv", "*.dat|*.csv"}, {"*.dat; ;b?.csv", "*.dat|b?.csv"}, {"my rep*", "my rep*"},
        {"my rep*;*.csv a?", "my rep*|*.csv|a?"}, {"\"my rep*\"", "my rep*"}, {"*.*", "*"}, {"*.*;*.dat", "*|*.dat"},
        {"*", "*"}, {";*", "*"}};
    for (const TypedPattern& row : table) {
        const QStringList patterns = morvane::ui::patternsOfTypedText(QString::fromLatin1(row.text));
        EXPECT_EQ(patterns.join(QLatin1Char('|')).toStdString(), row.patterns) << row.text;
    }
}

} // namespace
