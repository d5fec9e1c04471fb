// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

namespace morvane::compat {

/** The completer of ComboBoxAutoFilter: Morvane's stand-in for CTK's class with that name, a QCompleter. */
class ctkCompleter;

} // namespace morvane::compat
