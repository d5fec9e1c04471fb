// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <Qt>

namespace morvane::ui {

/**
 * Removes the uppermost override cursor of @p shape from the application's stack. The cursors above it keep their
 * order. If there is no cursor of that shape, other code has removed it instead of its own cursor. Then the top of the
 * stack is removed. Does nothing if the stack is empty.
 */
void takeOffOverrideCursor(Qt::CursorShape shape);

} // namespace morvane::ui
