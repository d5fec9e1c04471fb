// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/controls/ScientificNumberText_p.h"

#include <functional>
#include <optional>

namespace morvane::test {

using DigitSearch = std::function<std::optional<qint64>(qint64 number, qint64 minimum, qint64 maximum)>;

/** Reads a number step by step, in the plainest way. interpretNumber() must give the same results. */
ui::NumberInterpretation literalReading(
    const QString& input, int& pos, const ui::NumberRules& rules, const DigitSearch& search);

/** The same for mayGrowIntoRange(). */
bool literalIntermediateValue(const QString& str, const ui::NumberRules& rules, const DigitSearch& search);

} // namespace morvane::test
