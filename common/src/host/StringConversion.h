// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/MorvaneHostExport.h"

#include <string>

namespace morvane {

/**
 * Converts UTF-8 to the platform's wide text. That is UTF-16 where `wchar_t` has 16 bits (Windows), and UTF-32
 * elsewhere.
 *
 * Invalid sequences become U+FFFD (replacement character). A byte order mark at the start is dropped. NUL characters
 * are kept. Throws only std::bad_alloc, when memory runs out.
 *
 * @snippet 25-reject-with-a-reason/main.cpp wide
 */
MORVANE_HOST_EXPORT std::wstring utf8ToWideString(const std::string& utf8);

} // namespace morvane
