#pragma once

#include "windows/NativeDialog.h"

#include <functional>
#include <thread>
#include <vector>

namespace morvane::test {

/**
 * Somebody who uses the next common item dialogs of this process, one script each, from a thread of their own while the
 * dialogs run on the test's. When a script leaves its dialog open or none appears, the test fails, and the dialog is
 * cancelled so that it can go on. The destructor waits for the end of the scripts.
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
    explicit DialogUser(std::vector<Script> scripts);
    ~DialogUser();
    DialogUser(const DialogUser&) = delete;
    DialogUser& operator=(const DialogUser&) = delete;

private:
    std::thread m_thread;
};

} // namespace morvane::test
