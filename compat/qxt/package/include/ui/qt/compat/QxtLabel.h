// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QxtLabel>

namespace morvane::compat {

/** The base class of ElidedTextLabel: Qxt's class, because this Morvane was built with MORVANE_WITH_QXT. */
using ::QxtLabel;

} // namespace morvane::compat
