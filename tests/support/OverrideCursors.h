#pragma once

#include <Qt>

#include <vector>

namespace morvane::test {

/** The shapes of the application's override cursors, the one in force last. */
std::vector<Qt::CursorShape> overrideCursors();

} // namespace morvane::test
