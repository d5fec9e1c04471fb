// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <optional>

namespace morvane::ui {

/**
 * Finds a number between `minimum` and `maximum` that `number` becomes when more digits are typed.
 *
 * A candidate matches if its decimal digits, without the sign, contain those of `number` in the same order. There may
 * be other digits before, between and after them. The result is
 *
 * - `number` itself if it is in the range,
 * - else the largest candidate that matches among the first 500,001, counted from `maximum` downwards,
 * - else `number` itself if there are that many candidates, because the others are not searched,
 * - else nothing, as for an empty range (`minimum > maximum`).
 *
 * Each parameter may have any 64-bit value. The digits of the smallest value are those of 2^63. The time does not
 * depend on the size of the range.
 */
std::optional<qint64> findDigitsInRange(qint64 number, qint64 minimum, qint64 maximum);

} // namespace morvane::ui
