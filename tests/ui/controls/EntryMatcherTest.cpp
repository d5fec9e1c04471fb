// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "support/QtPrinters.h"
#include "ui/qt/controls/AccentFolding_p.h"
#include "ui/qt/controls/EntryMatcher_p.h"

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QStringList>

#include <random>

namespace {

using morvane::ui::EntryFit;
using morvane::ui::EntryMatcher;
using morvane::ui::EntryMatching;
using morvane::ui::withoutAccents;

constexpr EntryMatching words{true, false};
constexpr EntryMatching accents{false, true};
constexpr EntryMatching both{true, true};

QString utf8(const char* text)
{
    return QString::fromUtf8(text);
}

/** The entry with its places in brackets. */
QString marked(QString entry, const EntryMatcher& matcher)
{
    const std::vector<EntryMatcher::Place> places = matcher.places(entry);
    for (auto place = places.rbegin(); place != places.rend(); ++place) {
        entry.insert(place->first + place->second, ']').insert(place->first, '[');
    }
    return entry;
}

TEST(EntryMatcherTest, withoutOptionsTheTextIsOnePiece)
{
    EXPECT_TRUE(EntryMatcher("p 2").isContainedIn("pump 2"));
    EXPECT_FALSE(EntryMatcher("2 pump").isContainedIn("pump 2"));
    EXPECT_FALSE(EntryMatcher("muller").isContainedIn(utf8("Müller")));
    EXPECT_TRUE(EntryMatcher("").isContainedIn(""));
}

TEST(EntryMatcherTest, allWordsMustBeContainedInAnyOrder)
{
    EXPECT_TRUE(EntryMatcher("2 PUMP", words).isContainedIn("pump 2"));
    EXPECT_TRUE(EntryMatcher("  um\tp2 ", words).isContainedIn("pump2"));
    EXPECT_FALSE(EntryMatcher("pump 3", words).isContainedIn("pump 2"));
    EXPECT_TRUE(EntryMatcher(" ", words).isContainedIn("x"));
    EXPECT_TRUE(EntryMatcher("", words).isContainedIn("x"));
    EXPECT_TRUE(EntryMatcher("ab bc", words).isContainedIn("abc")) << "words may share letters";
}

TEST(EntryMatcherTest, accentsAreIgnoredInTextAndEntry)
{
    EXPECT_TRUE(EntryMatcher("muller", accents).isContainedIn(utf8("Müller")));
    EXPECT_TRUE(EntryMatcher(utf8("Müller"), accents).isContainedIn("MULLER"));
    EXPECT_TRUE(EntryMatcher("muller", accents).isContainedIn(utf8("Mu\xCC\x88ller"))) << "combining mark";
    EXPECT_TRUE(EntryMatcher("cafe dela", both).isContainedIn(utf8("Délai du café")));
    EXPECT_FALSE(EntryMatcher("o", accents).isContainedIn(utf8("ø")));
}

TEST(EntryMatcherTest, theCaseCountsIfItIsToldSo)
{
    EXPECT_FALSE(EntryMatcher("Pump", words, Qt::CaseSensitive).isContainedIn("pump"));
    EXPECT_TRUE(EntryMatcher("Pump", words, Qt::CaseSensitive).isContainedIn("2 Pumps"));
}

TEST(EntryMatcherTest, theFitTellsHowEqualTheyAre)
{
    EXPECT_EQ(EntryMatcher("car").fit("Scar"), EntryFit::Contained);
    EXPECT_EQ(EntryMatcher("car").fit("Car"), EntryFit::EqualButForCase);
    EXPECT_EQ(EntryMatcher("Car").fit("Car"), EntryFit::Equal);
    EXPECT_EQ(EntryMatcher("cafe", accents).fit(utf8("Café")), EntryFit::EqualButForAccents);
    EXPECT_EQ(EntryMatcher("cafe", accents).fit("Cafe"), EntryFit::EqualButForCase);
    EXPECT_EQ(EntryMatcher("Car ", words).fit("Car"), EntryFit::Equal);
    EXPECT_EQ(EntryMatcher("x", words).fit("Car"), EntryFit::None);
}

TEST(EntryMatcherTest, theSecondHalfOfACharacterIsNotFoundAlone)
{
    EXPECT_TRUE(EntryMatcher(utf8("🚀 go"), words).isContainedIn(utf8("go 🚀🚀")));
    EXPECT_TRUE(EntryMatcher(utf8("🚀"), both).isContainedIn(utf8("é🚀")));
    EXPECT_FALSE(EntryMatcher(utf8("🚀"), both).isContainedIn(utf8("🚁")));
}

TEST(EntryMatcherTest, placesAreAllThatAreFound)
{
    EXPECT_EQ(marked("Banana", EntryMatcher("an")), "B[anan]a");
    EXPECT_EQ(marked("pump 2, PUMP 3", EntryMatcher("pump")), "[pump] 2, [PUMP] 3");
    EXPECT_EQ(marked("pump 2, PUMP 3", EntryMatcher("3 um", words)), "p[um]p 2, P[UM]P [3]");
    EXPECT_EQ(marked("abcd", EntryMatcher("bc ab", words)), "[abc]d");
    EXPECT_EQ(marked(utf8("Café Délai"), EntryMatcher("fe el", both)), utf8("Ca[fé] D[él]ai"));
    EXPECT_EQ(marked(utf8("Mu\xCC\x88ller"), EntryMatcher("mul", accents)), utf8("[Mu\xCC\x88l]ler"));
    EXPECT_EQ(marked("abc", EntryMatcher("")), "abc");
    EXPECT_EQ(marked("abc", EntryMatcher(" ", words)), "abc");
    EXPECT_EQ(marked("Abc", EntryMatcher("a", words, Qt::CaseSensitive)), "Abc");
}

/** Removes the accents in the plainest way: takes every character apart and leaves the accents out. */
QString literallyWithoutAccents(const QString& text)
{
    QString result;
    const QString apart = text.normalized(QString::NormalizationForm_D);
    for (const QChar character : apart) {
        if (character.category() != QChar::Mark_NonSpacing || character.combiningClass() < 200) {
            result += character;
        }
    }
    return result.normalized(QString::NormalizationForm_C);
}

TEST(AccentFoldingTest, eachLetterIsTheOneThatRemainsWhenItIsTakenApart)
{
    int folded = 0;
    for (unsigned unit = 1; unit < 0x10000; ++unit) {
        const QChar character(static_cast<ushort>(unit));
        if (character.isSurrogate()) {
            continue;
        }
        const QString text = QString("x") + character + "y";
        const QString found = withoutAccents(text);
        ASSERT_EQ(found.normalized(QString::NormalizationForm_C), literallyWithoutAccents(text)) << unit;
        folded += found != text ? 1 : 0;
    }
    EXPECT_GT(folded, 900);
}

TEST(AccentFoldingTest, otherTextsStay)
{
    for (const char* const text : {"", "plain", "ø ł đ ß æ", "が ぱ", "한국어", "🚀", "10 µm", "שָׁלוֹם"}) {
        EXPECT_EQ(withoutAccents(utf8(text)), utf8(text));
    }
    const QString withNull = QString("a") + QChar() + "b";
    EXPECT_EQ(withoutAccents(withNull), withNull);
}

TEST(EntryMatcherTest, randomTextsAreFoundAsPatternsFindThem)
{
    std::mt19937 engine(23);
    const QString letters = utf8("aAbB éÉe\u0301");
    const auto random = [&](int longest) {
        QString text;
        for (unsigned length = engine() % static_cast<unsigned>(longest + 1); length > 0; --length) {
            text += letters.at(static_cast<int>(engine() % static_cast<unsigned>(letters.size())));
        }
        return text;
    };
    int found = 0;
    for (int i = 0; i < 20000; ++i) {
        const QString entry = random(10);
        const QString text = random(4);
        bool expected = true;
        const QStringList parts = literallyWithoutAccents(text).split(QRegularExpression("\\s+"), Qt::SkipEmptyParts);
        for (const QString& part : parts) {
            expected = expected && literallyWithoutAccents(entry).contains(part, Qt::CaseInsensitive);
        }
        ASSERT_EQ(EntryMatcher(text, both).isContainedIn(entry), expected)
            << entry.toStdString() << '|' << text.toStdString();
        found += expected ? 1 : 0;
    }
    EXPECT_GT(found, 1000);
}

} // namespace
