#pragma once

#include "host/MorvaneHostExport.h"

#include <string>

namespace morvane {

/**
 * Converts UTF-8 to the platform's wide text: UTF-16 where `wchar_t` has 16 bits (Windows), UTF-32 elsewhere.
 *
 * Invalid sequences become U+FFFD (replacement character), a byte order mark at the start is dropped, and NUL
 * characters are kept. Never throws but for lack of memory.
 *
 * @snippet 25-reject-with-a-reason/main.cpp wide
 */
MORVANE_HOST_EXPORT std::wstring utf8ToWideString(const std::string& utf8);

} // namespace morvane
