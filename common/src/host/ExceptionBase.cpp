#include "host/ExceptionBase.h"

#include <utility>

namespace morvane {

ExceptionBase::ExceptionBase(std::string message) : m_message(std::move(message)) {}

ExceptionBase::ExceptionBase(const ExceptionBase& other) = default;

ExceptionBase& ExceptionBase::operator=(const ExceptionBase& other) = default;

ExceptionBase::~ExceptionBase() = default;

const char* ExceptionBase::what() const noexcept
{
    return m_message.c_str();
}

} // namespace morvane
