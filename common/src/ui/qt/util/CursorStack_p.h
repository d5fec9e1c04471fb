#pragma once

#include <Qt>

namespace morvane::ui {

/**
 * Takes one override cursor of @p shape off the application's stack: the uppermost one, whatever others have put on top
 * of it since. Those stay, in their order. Without one of that shape somebody else has taken it off, and left one of
 * their own for it; the top of the stack goes then. Nothing when the stack is empty.
 *
 * Internal, not installed.
 */
void takeOffOverrideCursor(Qt::CursorShape shape);

} // namespace morvane::ui
