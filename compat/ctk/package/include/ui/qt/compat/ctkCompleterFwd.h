// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

class ctkCompleter;

namespace morvane::compat {

/** The completer of ComboBoxAutoFilter: CTK's class, because this Morvane was built with MORVANE_WITH_CTK. */
using ::ctkCompleter;

} // namespace morvane::compat
