// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <map>
#include <string>

/** The content of the host's settings store. */
std::map<std::string, QByteArray>& engineSettings();
