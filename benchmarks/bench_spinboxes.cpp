// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "LiteralDigitSearch.h"
#include "LiteralNumberReading.h"
#include "support/Ratio.h"
#include "ui/qt/controls/DigitSearch_p.h"
#include "ui/qt/controls/Integral64SpinBox.h"
#include "ui/qt/controls/QScientificSpinBox.h"
#include "ui/qt/controls/ScientificNumberText_p.h"

#include <QElapsedTimer>
#include <QLocale>
#include <QSpinBox>

#include <algorithm>
#include <array>
#include <cstdio>
#include <limits>
#include <random>
#include <vector>

namespace {

using morvane::test::literalDigitSearch;
using morvane::test::literalReading;
using morvane::ui::findDigitsInRange;
using morvane::ui::interpretNumber;
using morvane::ui::NumberRules;
using morvane::ui::QScientificSpinBox;

constexpr qint64 lowest = std::numeric_limits<qint64>::min();
constexpr qint64 highest = std::numeric_limits<qint64>::max();
constexpr double largest = std::numeric_limits<double>::max();

/** The shortest of a few times of `action`, in nanoseconds. */
template <typename Action>
double timeOf(int tries, Action action)
{
    qint64 shortest = highest;
    for (int i = 0; i < tries; ++i) {
        QElapsedTimer timer;
        timer.start();
        action();
        shortest = std::min(shortest, timer.nsecsElapsed());
    }
    return static_cast<double>(shortest);
}

template <typename Case, typename Action>
Case slowestOf(const std::vector<Case>& cases, int tries, Action action)
{
    double worst = -1;
    Case slowest = cases.front();
    for (const Case& each : cases) {
        const double time = timeOf(tries, [&] { action(each); });
        if (time > worst) {
            worst = time;
            slowest = each;
        }
    }
    return slowest;
}

struct Search
{
    qint64 number;
    qint64 minimum;
    qint64 maximum;
};

std::vector<Search> hardSearches(int count)
{
    std::vector<Search> searches = {{lowest, lowest + 1, highest}, {highest, lowest, highest - 1},
        {5555555555555555555, lowest, 5555555555555555554}, {11, lowest, 10}, {-11, -10, highest}};
    std::mt19937_64 random(3);
    while (static_cast<int>(searches.size()) < count) {
        const auto number = static_cast<qint64>(random() >> random() % 40);
        const auto a = static_cast<qint64>(random() >> random() % 60);
        const auto b = static_cast<qint64>(random() >> random() % 60);
        if (number < std::min(a, b) || number > std::max(a, b)) {
            searches.push_back({number, std::min(a, b), std::max(a, b)});
        }
    }
    return searches;
}

void digitSearchWorst(benchmark::State& state)
{
    static const Search worst = slowestOf(hardSearches(20000), 50,
        [](const Search& s) { benchmark::DoNotOptimize(findDigitsInRange(s.number, s.minimum, s.maximum)); });
    Search search = worst;
    for (auto _ : state) {
        benchmark::DoNotOptimize(search);
        benchmark::DoNotOptimize(findDigitsInRange(search.number, search.minimum, search.maximum));
    }
}
MORVANE_BENCHMARK(digitSearchWorst);

void literalDigitSearchWorst(benchmark::State& state)
{
    static const Search worst = slowestOf(hardSearches(60), 2,
        [](const Search& s) { benchmark::DoNotOptimize(literalDigitSearch(s.number, s.minimum, s.maximum)); });
    Search search = worst;
    for (auto _ : state) {
        benchmark::DoNotOptimize(search);
        benchmark::DoNotOptimize(literalDigitSearch(search.number, search.minimum, search.maximum));
    }
}
MORVANE_BENCHMARK(literalDigitSearchWorst);

/** A text as it stands after a keystroke, in a spin box of that range. */
struct Keystroke
{
    QString text;
    double minimum = 0;
    double maximum = 0;
    int decimals = 8;
};

std::vector<Keystroke> keystrokes()
{
    const std::array<const char*, 10> texts = {"-1.2345E-07", "123456789.123456789", "-987654321012.5", "1,234,567.25",
        "-12,34,56", "0.000000000000001", "-.999999999999", "111111111111111111.1", "77777777",
        "1.7976931348623157E+308"};
    const std::array<double, 11> limits = {
        -largest, -9.2e18, -1234567890123.5, -1e6 - 0.5, -2, 0, 0.001, 2.5, 400000.25, 98765432101234.5, 9.2e18};
    std::vector<Keystroke> all;
    for (const char* const text : texts) {
        for (int length = 1; text[length - 1] != 0; ++length) {
            for (size_t i = 0; i < limits.size(); ++i) {
                for (size_t j = i + 1; j < limits.size(); ++j) {
                    for (const int decimals : {8, 12}) {
                        all.push_back({QString::fromLatin1(text, length), limits[i], limits[j], decimals});
                    }
                }
            }
        }
    }
    return all;
}

/** Validates what was typed, and then another text, so that the answer is not remembered. */
void validate(const QScientificSpinBox& spin, const Keystroke& key)
{
    static const QString plus = QStringLiteral("+");
    for (QString text : {key.text, plus}) {
        int pos = text.size();
        benchmark::DoNotOptimize(spin.validate(text, pos));
    }
}

void prepare(QScientificSpinBox& spin, const Keystroke& key)
{
    spin.setRange(key.minimum, key.maximum);
    spin.setDecimals(key.decimals);
}

void validateWorst(benchmark::State& state)
{
    static QScientificSpinBox spin;
    static const Keystroke worst = [] {
        Keystroke slowest;
        double longest = -1;
        for (const Keystroke& key : keystrokes()) {
            prepare(spin, key);
            const double time = timeOf(8, [&] { validate(spin, key); });
            if (time > longest) {
                longest = time;
                slowest = key;
            }
        }
        return slowest;
    }();
    prepare(spin, worst);
    for (auto _ : state) {
        validate(spin, worst);
    }
    state.SetLabel(worst.text.toStdString());
}
MORVANE_BENCHMARK(validateWorst);

void readWithTheLoop(const Keystroke& key)
{
    const NumberRules rules{key.minimum, key.maximum, key.decimals, '.', ',', {}, {}, {}};
    int pos = key.text.size();
    benchmark::DoNotOptimize(literalReading(key.text, pos, rules, literalDigitSearch));
}

void validateWorstWithTheLoop(benchmark::State& state)
{
    // Each takes milliseconds, so only a part of them is measured.
    static const Keystroke worst = [] {
        std::vector<Keystroke> all = keystrokes();
        std::shuffle(all.begin(), all.end(), std::mt19937(5));
        all.resize(800);
        return slowestOf(all, 1, readWithTheLoop);
    }();
    for (auto _ : state) {
        readWithTheLoop(worst);
    }
    state.SetLabel(worst.text.toStdString());
}
MORVANE_BENCHMARK(validateWorstWithTheLoop);

/** Validates a text that grows key by key. Each text differs from the one before, so no answer is remembered. */
template <typename SpinBox>
void typeKeyByKey(benchmark::State& state, const SpinBox& spin, const QString& whole)
{
    std::vector<QString> texts;
    for (int length = 1; length <= whole.size(); ++length) {
        texts.push_back(whole.left(length));
    }
    for (auto _ : state) {
        for (QString& text : texts) {
            int pos = text.size();
            benchmark::DoNotOptimize(spin.validate(text, pos));
        }
    }
}

void validateTypical(benchmark::State& state)
{
    typeKeyByKey(state, QScientificSpinBox(), QStringLiteral("-1.2345E-07"));
}
MORVANE_BENCHMARK(validateTypical);

void validateTypicalByQt(benchmark::State& state)
{
    QDoubleSpinBox spin;
    spin.setDecimals(12);
    spin.setRange(-1e6, 1e6);
    typeKeyByKey(state, spin, QStringLiteral("-1.23456789"));
}
MORVANE_BENCHMARK(validateTypicalByQt);

const std::array<double, 8> constants = {
    299792458, 6.62607015e-34, -1.602176634e-19, 8.8541878128e-12, 9.80665, 100, 6.02214076e23, 0.000015};

void text(benchmark::State& state)
{
    const QScientificSpinBox spin;
    for (auto _ : state) {
        for (const double constant : constants) {
            benchmark::DoNotOptimize(spin.textFromValue(constant));
        }
    }
}
MORVANE_BENCHMARK(text);

void textBySnprintf(benchmark::State& state)
{
    char buffer[1077];
    for (auto _ : state) {
        for (const double constant : constants) {
            benchmark::DoNotOptimize(std::snprintf(buffer, sizeof buffer, "%.*G", 8, constant));
            benchmark::ClobberMemory();
        }
    }
}
MORVANE_BENCHMARK(textBySnprintf);

/** With prefixes of the SI; German, if wanted. */
void prepare(QScientificSpinBox& spin, bool german)
{
    spin.setNotation(QScientificSpinBox::SiPrefix);
    spin.setSuffix(QStringLiteral("V"));
    if (german) {
        spin.setNumberLocale(QLocale(QLocale::German, QLocale::Germany));
    }
}

void validatePrefix(benchmark::State& state)
{
    QScientificSpinBox spin;
    prepare(spin, false);
    typeKeyByKey(state, spin, QStringLiteral("-1.23456 \u00b5V"));
}
MORVANE_BENCHMARK(validatePrefix);

void validateGerman(benchmark::State& state)
{
    QScientificSpinBox spin;
    prepare(spin, true);
    typeKeyByKey(state, spin, QStringLiteral("-1,23456 \u00b5V"));
}
MORVANE_BENCHMARK(validateGerman);

void textWithPrefix(benchmark::State& state, bool german)
{
    QScientificSpinBox spin;
    prepare(spin, german);
    for (auto _ : state) {
        for (const double constant : constants) {
            benchmark::DoNotOptimize(spin.textFromValue(constant));
        }
    }
}

void showPrefix(benchmark::State& state)
{
    textWithPrefix(state, false);
}
MORVANE_BENCHMARK(showPrefix);

void showGerman(benchmark::State& state)
{
    textWithPrefix(state, true);
}
MORVANE_BENCHMARK(showGerman);

void showByQt(benchmark::State& state)
{
    QDoubleSpinBox spin;
    spin.setDecimals(12);
    spin.setRange(-1e24, 1e24);
    for (auto _ : state) {
        for (const double constant : constants) {
            benchmark::DoNotOptimize(spin.textFromValue(constant));
        }
    }
}
MORVANE_BENCHMARK(showByQt);

void validateHexadecimal64(benchmark::State& state)
{
    morvane::ui::Integral64SpinBox spin;
    spin.setRange(lowest, highest);
    spin.setBase(morvane::ui::Integral64SpinBox::Hexadecimal);
    spin.setGroupSeparator(QStringLiteral("_"));
    typeKeyByKey(state, spin, QStringLiteral("7FFF_1234"));
}
MORVANE_BENCHMARK(validateHexadecimal64);

void validateHexadecimalByQt(benchmark::State& state)
{
    struct Opened : QSpinBox
    {
        using QSpinBox::validate;
    } spin;
    spin.setRange(0, std::numeric_limits<int>::max());
    spin.setDisplayIntegerBase(16);
    typeKeyByKey(state, spin, QStringLiteral("7fff12345"));
}
MORVANE_BENCHMARK(validateHexadecimalByQt);

/** Reads texts as they may be pasted: `length` characters of digits, separators and blanks, several times. */
void readLongTexts(int length, int times)
{
    const NumberRules rules{-largest, largest, 8, '.', ',', {}, {}, {}};
    const QString nines(length, '9');
    for (const QString& text :
        {nines, "0." + nines, QString("9,").repeated(length / 2), QString(length, ' '), "1E" + nines}) {
        for (int i = 0; i < times; ++i) {
            int pos = length;
            benchmark::DoNotOptimize(interpretNumber(text, pos, rules));
        }
    }
}

void readMebibyte(benchmark::State& state)
{
    for (auto _ : state) {
        readLongTexts(1 << 20, 1);
    }
}
MORVANE_BENCHMARK(readMebibyte);

void readSixteenthsOfMebibyte(benchmark::State& state)
{
    for (auto _ : state) {
        readLongTexts(1 << 16, 16);
    }
}
MORVANE_BENCHMARK(readSixteenthsOfMebibyte);

MORVANE_RATIO(spin_digit_search_worst, digitSearchWorst, literalDigitSearchWorst, 0.001);
MORVANE_RATIO(spin_validate_worst, validateWorst, validateWorstWithTheLoop, 0.01);
MORVANE_RATIO(spin_validate_typical, validateTypical, validateTypicalByQt, 1.0);
MORVANE_RATIO(spin_read_growth, readMebibyte, readSixteenthsOfMebibyte, 2);
MORVANE_RATIO(spin_prefix_validate, validatePrefix, validateTypicalByQt, 1.5);
MORVANE_RATIO(spin_locale_validate, validateGerman, validateTypicalByQt, 1.5);
MORVANE_RATIO(spin_prefix_text, showPrefix, showByQt, 1.5);
MORVANE_RATIO(spin_locale_text, showGerman, showByQt, 1.5);
MORVANE_RATIO(spin_integer64_validate, validateHexadecimal64, validateHexadecimalByQt, 1.5);
MORVANE_RATIO(spin_text, text, textBySnprintf, 1.5);

} // namespace
