// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <algorithm>

namespace morvane::ui {

/** What one change has put into a text: the part between the longest common start and the longest common end. */
inline QString putIn(const QString& before, const QString& after)
{
    const auto start = std::mismatch(after.begin(), after.end(), before.begin(), before.end()).first - after.begin();
    const auto most = std::min(after.size(), before.size()) - start;
    const auto end = std::mismatch(after.rbegin(), after.rbegin() + most, before.rbegin()).first - after.rbegin();
    return after.mid(static_cast<int>(start), static_cast<int>(after.size() - start - end));
}

} // namespace morvane::ui
