// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <vector>

namespace morvane::ui {

/**
 * The text without accents: each letter with accents is replaced by the letter alone, and combining accents are
 * removed. Accents are the marks above, below and at a letter (combining class 200 and higher), so the dots of Hebrew
 * and the voicing marks of Japanese stay. A letter with a stroke, such as ø, is a letter of its own and stays, too.
 *
 * @param places if not null, gets the place in `text` of each character of the result, and the length of `text` at the
 *               end
 */
QString withoutAccents(const QString& text, std::vector<int>* places = nullptr);

} // namespace morvane::ui
