#pragma once

#include <string>

namespace morvane::test {

/**
 * What the Shell of the running system, Windows or Wine, does otherwise than the contract's test of this name expects;
 * null when nothing is known.
 */
const char* shellDifference(const std::string& test);

} // namespace morvane::test
