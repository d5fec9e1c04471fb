// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "host/PropertyItemInterface.h"

namespace morvane {

struct PropertyItemInterface::Impl
{
};

PropertyItemInterface::PropertyItemInterface() = default;

PropertyItemInterface::~PropertyItemInterface() = default;

void PropertyItemInterface::signalPropertyChangedConnected() const {}

} // namespace morvane
