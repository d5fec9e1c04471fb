// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

namespace morvane::test {

/** Long enough for one step of a user, even when other tests keep the machine busy. */
constexpr int timeLimitMs = 15000;

/** Waits until @p condition holds; returns false if it does not in time. */
bool eventually(const std::function<bool()>& condition);

} // namespace morvane::test
