#include "windows/Mouse.h"

#include <vector>

namespace morvane::test {

namespace {

INPUT button(DWORD flags)
{
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    return input;
}

INPUT control(DWORD flags)
{
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = VK_CONTROL;
    input.ki.dwFlags = flags;
    return input;
}

} // namespace

void clickAt(POINT position, bool withControl)
{
    SetCursorPos(position.x, position.y);
    std::vector<INPUT> inputs{button(MOUSEEVENTF_LEFTDOWN), button(MOUSEEVENTF_LEFTUP)};
    if (withControl) {
        inputs.insert(inputs.begin(), control(0));
        inputs.push_back(control(KEYEVENTF_KEYUP));
    }
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

} // namespace morvane::test
