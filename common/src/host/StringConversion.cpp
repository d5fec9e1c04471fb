// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "host/StringConversion.h"

#include <QString>

namespace morvane {

std::wstring utf8ToWideString(const std::string& utf8)
{
    return QString::fromStdString(utf8).toStdWString();
}

} // namespace morvane
