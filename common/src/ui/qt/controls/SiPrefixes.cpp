// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/SiPrefixes_p.h"

#include <array>

namespace morvane::ui {

namespace {

/** From 10^-30 to 10^30, in steps of 10^3. */
constexpr std::array<char16_t, 21> thousands{u'q', u'r', u'y', u'z', u'a', u'f', u'p', u'n', u'\u00b5', u'm', 0, u'k',
    u'M', u'G', u'T', u'P', u'E', u'Z', u'Y', u'R', u'Q'};
constexpr std::size_t one = 10; ///< the index of 10^0

} // namespace

QString siSymbol(int exponent)
{
    const char16_t symbol = thousands[static_cast<std::size_t>(exponent / 3 + static_cast<int>(one))];
    return symbol ? QString(QChar(symbol)) : QString();
}

std::optional<int> siExponent(QStringView symbol)
{
    if (symbol.size() == 2 && symbol.at(0) == QLatin1Char('d') && symbol.at(1) == QLatin1Char('a')) {
        return 1;
    }
    if (symbol.size() != 1) {
        return std::nullopt;
    }
    switch (const char16_t letter = symbol.at(0).unicode()) {
    case u'h':
        return 2;
    case u'd':
        return -1;
    case u'c':
        return -2;
    case u'u':
    case u'\u03bc':
        return -6;
    default:
        for (std::size_t i = 0; i < thousands.size(); ++i) {
            if (i != one && thousands[i] == letter) {
                return (static_cast<int>(i) - static_cast<int>(one)) * 3;
            }
        }
        return std::nullopt;
    }
}

} // namespace morvane::ui
