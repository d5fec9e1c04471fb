// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLocale>
#include <QVariant>

#include <optional>

namespace morvane::ui {

/** Whether a value is a number; a truth value is none. */
bool isNumber(const QVariant& value);

/**
 * The number that a text stands for in a locale, with the type of `old`; an invalid value for a blank text.
 *
 * @param old a number
 * @return nothing if the text is no number, or none that this type can hold
 */
std::optional<QVariant> pastedNumber(const QString& text, const QVariant& old, const QLocale& locale);

} // namespace morvane::ui
