// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

namespace morvane::ui {

constexpr int smallestSiExponent = -30; ///< quecto
constexpr int largestSiExponent = 30;   ///< quetta

/** The symbol for a multiple of three from quecto to quetta; empty for 0. Micro is U+00B5. */
QString siSymbol(int exponent);

/**
 * The exponent of a symbol from quecto to quetta, also of hecto, deca, deci and centi. Micro is U+00B5, U+03BC or `u`.
 * None for other texts and for the empty one.
 */
std::optional<int> siExponent(QStringView symbol);

} // namespace morvane::ui
