// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

namespace morvane::ui {

/** Gives each ElidedTextLabel the role of a text, and the whole text as its accessible name. May be called again. */
void installElidedTextAccessible();

} // namespace morvane::ui
