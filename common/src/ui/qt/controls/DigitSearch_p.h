#pragma once

#include <QtGlobal>

#include <optional>

namespace morvane::ui {

/**
 * Whether `number` can still grow into one between `minimum` and `maximum` when more digits are typed into it, and into
 * which.
 *
 * A candidate fits when its decimal digits, signs apart, hold those of `number` in the same order, with any others
 * before, between and behind them. The answer is
 *
 * - `number` itself when it lies in the range,
 * - else the largest candidate that fits among the first 500,001, counted from `maximum` downwards,
 * - else `number` itself when there are that many candidates: nobody looked further, so the user gets the benefit of
 *   the doubt,
 * - else nothing, as for an empty range (`minimum > maximum`).
 *
 * Every 64-bit value is allowed in every place, both limits included; the digits of the smallest one are those of 2^63.
 * The time does not depend on the size of the range.
 */
std::optional<qint64> findDigitsInRange(qint64 number, qint64 minimum, qint64 maximum);

} // namespace morvane::ui
