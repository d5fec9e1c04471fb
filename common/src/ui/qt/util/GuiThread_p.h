// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

namespace morvane::ui {

/**
 * Logs a warning if `what` is used outside the thread of the application, because its behaviour is undefined there.
 * Does nothing without an application object, and in builds without debugging.
 */
#ifdef QT_NO_DEBUG
inline void expectGuiThread(const char* /*what*/) {}
#else
void expectGuiThread(const char* what);
#endif

} // namespace morvane::ui
