// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "tour/SystemFileDialog.h"

#include <windows.h>

#include <commctrl.h>

#include <string>

namespace gallery::tour {

namespace {

constexpr int typesId = 1136;
constexpr int nameId = 1152;

HWND asWindow(quintptr value)
{
    return reinterpret_cast<HWND>(value);
}

bool hasClass(HWND window, const wchar_t* name)
{
    wchar_t buffer[64] = {};
    GetClassNameW(window, buffer, 64);
    return std::wstring(buffer) == name;
}

struct Search
{
    const wchar_t* className;
    const wchar_t* text; ///< null: any text
    int id;              ///< 0: any identifier
    HWND found;
};

BOOL CALLBACK matchChild(HWND window, LPARAM argument)
{
    auto& search = *reinterpret_cast<Search*>(argument);
    wchar_t text[256] = {};
    GetWindowTextW(window, text, 256);
    const bool matches = hasClass(window, search.className) && (!search.text || std::wstring(text) == search.text) &&
                         (search.id == 0 || GetDlgCtrlID(window) == search.id);
    search.found = matches ? window : nullptr;
    return matches ? FALSE : TRUE;
}

HWND findChild(HWND parent, const wchar_t* className, const wchar_t* text, int id)
{
    Search search{className, text, id, nullptr};
    EnumChildWindows(parent, matchChild, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND control(quintptr window, const QString& text)
{
    return findChild(asWindow(window), WC_BUTTONW, text.toStdWString().c_str(), 0);
}

BOOL CALLBACK matchDialog(HWND window, LPARAM argument)
{
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    const bool matches = process == GetCurrentProcessId() && hasClass(window, L"#32770") && IsWindowVisible(window) &&
                         findChild(window, WC_EDITW, nullptr, nameId);
    *reinterpret_cast<HWND*>(argument) = matches ? window : nullptr;
    return matches ? FALSE : TRUE;
}

} // namespace

SystemFileDialog::SystemFileDialog()
{
    HWND window = nullptr;
    EnumWindows(matchDialog, reinterpret_cast<LPARAM>(&window));
    m_window = reinterpret_cast<quintptr>(window);
}

QRect SystemFileDialog::geometry() const
{
    RECT place{};
    GetWindowRect(asWindow(m_window), &place);
    return {QPoint(place.left, place.top), QPoint(place.right - 1, place.bottom - 1)};
}

QString SystemFileDialog::name() const
{
    wchar_t text[512] = {};
    SendMessageW(
        findChild(asWindow(m_window), WC_EDITW, nullptr, nameId), WM_GETTEXT, 512, reinterpret_cast<LPARAM>(text));
    return QString::fromWCharArray(text);
}

void SystemFileDialog::setName(const QString& name) const
{
    SendMessageW(findChild(asWindow(m_window), WC_EDITW, nullptr, nameId), WM_SETTEXT, 0,
        reinterpret_cast<LPARAM>(name.toStdWString().c_str()));
}

void SystemFileDialog::pickType(int index) const
{
    const HWND types = findChild(asWindow(m_window), WC_COMBOBOXW, nullptr, typesId);
    SendMessageW(types, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
    SendMessageW(GetParent(types), WM_COMMAND, MAKEWPARAM(typesId, CBN_SELCHANGE), reinterpret_cast<LPARAM>(types));
}

int SystemFileDialog::listedFiles() const
{
    const HWND list = findChild(asWindow(m_window), WC_LISTVIEWW, nullptr, 0);
    return static_cast<int>(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
}

void SystemFileDialog::click(const QString& text) const
{
    PostMessageW(control(m_window, text), BM_CLICK, 0, 0);
}

bool SystemFileDialog::isVisible(const QString& text) const
{
    const HWND button = control(m_window, text);
    return button && IsWindowVisible(button);
}

bool SystemFileDialog::isEnabled(const QString& text) const
{
    const HWND button = control(m_window, text);
    return button && IsWindowEnabled(button);
}

bool SystemFileDialog::isChecked(const QString& text) const
{
    return SendMessageW(control(m_window, text), BM_GETCHECK, 0, 0) == BST_CHECKED;
}

void SystemFileDialog::accept() const
{
    PostMessageW(asWindow(m_window), WM_COMMAND, IDOK, 0);
}

void SystemFileDialog::cancel() const
{
    PostMessageW(asWindow(m_window), WM_COMMAND, IDCANCEL, 0);
}

} // namespace gallery::tour
