// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "windows/Mouse.h"

#include <vector>

namespace morvane::test {

namespace {

/** A position in the unit of mouse events, in which the screen is 65536 wide and high. */
LONG normalized(LONG position, int metric)
{
    const LONGLONG extent = GetSystemMetrics(metric);
    return static_cast<LONG>((static_cast<LONGLONG>(position) * 65536 + extent / 2) / extent);
}

/** The event contains its position, so that a mouse movement before it has no effect. */
INPUT button(POINT position, DWORD flags)
{
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dx = normalized(position.x, SM_CXSCREEN);
    input.mi.dy = normalized(position.y, SM_CYSCREEN);
    input.mi.dwFlags = flags | MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
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
    std::vector<INPUT> inputs{button(position, MOUSEEVENTF_LEFTDOWN), button(position, MOUSEEVENTF_LEFTUP)};
    if (withControl) {
        inputs.insert(inputs.begin(), control(0));
        inputs.push_back(control(KEYEVENTF_KEYUP));
    }
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

} // namespace morvane::test
