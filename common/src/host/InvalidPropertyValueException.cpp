// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "host/InvalidPropertyValueException.h"

#include <utility>

namespace morvane {

InvalidPropertyValueException::InvalidPropertyValueException(std::string message) : ExceptionBase(std::move(message)) {}

InvalidPropertyValueException::InvalidPropertyValueException(const InvalidPropertyValueException& other) = default;

InvalidPropertyValueException& InvalidPropertyValueException::operator=(
    const InvalidPropertyValueException& other) = default;

InvalidPropertyValueException::~InvalidPropertyValueException() = default;

} // namespace morvane
