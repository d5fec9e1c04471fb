// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

namespace morvane::ui {

// All results are exact decimals: what the digits say is changed, and the nearest double is returned. A result that is
// too large is an infinity, one that is too small is 0.

/** Multiplies by ten for each step up. For a negative number up is towards 0. 0 remains 0. */
double decadesAway(double number, int steps);

/**
 * The numbers of the sequence 1, 2, 5, 10, 20, 50 and so on. A number between two of them steps to the next one in the
 * direction. For a negative number up is towards 0. 0 remains 0.
 */
double oneTwoFiveAway(double number, int steps);

/** Adds `steps` to the digit with this decimal place: 0 for ones, -3 for thousandths. */
double placesAway(double number, int place, int steps);

} // namespace morvane::ui
