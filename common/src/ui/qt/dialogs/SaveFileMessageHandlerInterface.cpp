// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/SaveFileMessageHandlerInterface.h"

namespace morvane {

SaveFileMessageHandlerInterface::~SaveFileMessageHandlerInterface() = default;

} // namespace morvane
