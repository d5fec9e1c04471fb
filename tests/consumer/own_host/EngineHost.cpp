// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The host services as a host with a settings store and a help system of its own would implement them.
#include "EngineHost.h"

#include "host/ApplicationSettings.h"
#include "host/HelpLauncher.h"
#include "host/InvalidPropertyValueException.h"
#include "host/PropertyItemInterface.h"
#include "host/StringConversion.h"
#include "host/ValidationResult.h"

#include <utility>

std::map<std::string, QByteArray>& engineSettings()
{
    static std::map<std::string, QByteArray> settings;
    return settings;
}

namespace morvane {

struct ApplicationSettings::Impl
{
};

ApplicationSettings::ApplicationSettings(const QString&) {}
ApplicationSettings::~ApplicationSettings() = default;

ApplicationSettings& ApplicationSettings::getInstance()
{
    static ApplicationSettings settings(QString{});
    return settings;
}

QByteArray ApplicationSettings::getByteArrayValue(const std::string& key)
{
    return engineSettings()[key];
}

void ApplicationSettings::depositValue(const std::string& key, const QByteArray& value)
{
    engineSettings()[key] = value;
}

struct HelpLauncher::Impl
{
};

HelpLauncher::HelpLauncher() = default;
HelpLauncher::~HelpLauncher() = default;
void HelpLauncher::showHelp(const std::string&) {}

HelpLauncher& HelpLauncher::getInstance()
{
    static HelpLauncher launcher;
    return launcher;
}

std::wstring utf8ToWideString(const std::string& utf8)
{
    return QString::fromStdString(utf8).toStdWString();
}

struct ExceptionBase::Impl
{
    std::string message;
};

ExceptionBase::ExceptionBase(std::string message) : m_impl(std::make_shared<Impl>(Impl{std::move(message)})) {}
ExceptionBase::ExceptionBase(const ExceptionBase&) = default;
ExceptionBase::~ExceptionBase() = default;
const char* ExceptionBase::what() const noexcept
{
    return m_impl->message.c_str();
}

InvalidPropertyValueException::InvalidPropertyValueException(std::string message) : ExceptionBase(std::move(message)) {}
InvalidPropertyValueException::InvalidPropertyValueException(const InvalidPropertyValueException&) = default;
InvalidPropertyValueException::~InvalidPropertyValueException() = default;

struct ValidationResult::Impl
{
    std::string errorString;
};

ValidationResult::ValidationResult() = default;
ValidationResult::ValidationResult(const ValidationResult&) = default;
ValidationResult::~ValidationResult() = default;
bool ValidationResult::isValid() const
{
    return !m_impl;
}
std::string ValidationResult::errorString() const
{
    return m_impl ? m_impl->errorString : std::string();
}

struct PropertyItemInterface::Impl
{
};

PropertyItemInterface::PropertyItemInterface() = default;
PropertyItemInterface::~PropertyItemInterface() = default;
void PropertyItemInterface::signalPropertyChangedConnected() const {}

} // namespace morvane
