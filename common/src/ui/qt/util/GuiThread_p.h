#pragma once

namespace morvane::ui {

/**
 * Says in the log, in builds for debugging, that `what` is used in another thread than that of the application. What
 * happens next is undefined then; hence the word. Nothing without an application object and in other builds.
 *
 * Internal, not installed.
 */
#ifdef QT_NO_DEBUG
inline void expectGuiThread(const char* /*what*/) {}
#else
void expectGuiThread(const char* what);
#endif

} // namespace morvane::ui
