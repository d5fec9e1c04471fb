// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <Qt>

#include <vector>

namespace morvane::test {

/** The shapes of the application's override cursors, the active one last. */
std::vector<Qt::CursorShape> overrideCursors();

} // namespace morvane::test
