#pragma once

#include <functional>

namespace morvane::test {

/** For one step of a user, on a machine that is busy with other tests. */
constexpr int timeLimitMs = 15000;

/** Waits until @p condition holds; returns whether it came to hold. */
bool eventually(const std::function<bool()>& condition);

} // namespace morvane::test
