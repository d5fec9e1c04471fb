// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/ShellInterfaces.h"

#include <string>

namespace morvane::ui {

/** The identifier under which the Shell keeps what belongs to a key. Equal keys have equal identifiers, everywhere. */
GUID memoryGuid(const std::string& key);

} // namespace morvane::ui
