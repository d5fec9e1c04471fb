// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "host/ExceptionBase.h"

#include <utility>

namespace morvane {

struct ExceptionBase::Impl
{
    std::string message;
};

ExceptionBase::ExceptionBase(std::string message) : m_impl(std::make_shared<Impl>(Impl{std::move(message)})) {}

ExceptionBase::ExceptionBase(const ExceptionBase& other) = default;

ExceptionBase& ExceptionBase::operator=(const ExceptionBase& other) = default;

ExceptionBase::~ExceptionBase() = default;

const char* ExceptionBase::what() const noexcept
{
    return m_impl->message.c_str();
}

} // namespace morvane
