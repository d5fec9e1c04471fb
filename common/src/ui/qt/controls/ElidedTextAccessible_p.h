#pragma once

namespace morvane::ui {

/** Gives each ElidedTextLabel the role of a text and its whole text as accessible name. May be called again. */
void installElidedTextAccessible();

} // namespace morvane::ui
