// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/controls/StyledNumber_p.h"

#include <optional>

namespace morvane::test {

/** A number as printf's "%.*E" writes it. Unlike QString::asprintf(), this rounds half to even. */
QString rounded(double number, int significantDigits);

/** Writes a number with printf's "%.*E" and moves its point. styledNumber() must give the same text. */
QString literalStyledNumber(double number, const ui::NumberStyle& style);

/** The number in a complete text, found with a regular expression. None where readStyledNumber() is not acceptable. */
std::optional<double> literalStyledReading(const QString& text, const ui::NumberStyle& style);

} // namespace morvane::test
