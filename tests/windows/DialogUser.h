#pragma once

#include "windows/NativeDialog.h"

#include <functional>
#include <thread>

namespace morvane::test {

/**
 * Somebody who uses the next common item dialog of this process, from a thread of their own while the dialog runs on
 * the test's. When the script leaves the dialog open or none appears, the test fails, and the dialog is cancelled so
 * that it can go on. The destructor waits for the end of the script.
 *
 * @code
 * const DialogUser user([](NativeDialog& dialog) { dialog.accept(L"out.dat"); });
 * dialog.exec();
 * @endcode
 */
class DialogUser
{
public:
    using Script = std::function<void(NativeDialog& dialog)>;

    explicit DialogUser(Script script);
    ~DialogUser();
    DialogUser(const DialogUser&) = delete;
    DialogUser& operator=(const DialogUser&) = delete;

private:
    std::thread m_thread;
};

} // namespace morvane::test
