// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "windows/NativeDialog.h"

#include "windows/Mouse.h"

#include <commctrl.h>

#include <chrono>
#include <thread>

namespace morvane::test {

namespace {

constexpr UINT answerMilliseconds = 10'000;
constexpr int firstCustomControl = 8192;
const wchar_t* const dialogClass = L"#32770";
const wchar_t* const menuClass = L"#32768";

/** Sends a message with a time limit, because the other thread may hang. */
LRESULT send(HWND window, UINT message, WPARAM wparam = 0, LPARAM lparam = 0)
{
    DWORD_PTR result = 0;
    SendMessageTimeoutW(window, message, wparam, lparam, SMTO_NORMAL, answerMilliseconds, &result);
    return static_cast<LRESULT>(result);
}

std::wstring windowText(HWND window)
{
    std::wstring text(static_cast<std::size_t>(send(window, WM_GETTEXTLENGTH)) + 1, L'\0');
    const LRESULT length = send(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

bool hasClass(HWND window, const wchar_t* name)
{
    wchar_t buffer[64] = {};
    GetClassNameW(window, buffer, 64);
    return std::wstring(buffer) == name;
}

bool isOurs(HWND window)
{
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process == GetCurrentProcessId();
}

struct ChildSearch
{
    int id;
    HWND found;
};

BOOL CALLBACK matchChild(HWND window, LPARAM argument)
{
    auto& search = *reinterpret_cast<ChildSearch*>(argument);
    // A custom control is in a frame that has the same id.
    if (GetDlgCtrlID(window) != search.id || hasClass(window, L"FloatNotifySink")) {
        return TRUE;
    }
    search.found = window;
    return FALSE;
}

HWND findChild(HWND parent, int id)
{
    // The list of files has controls of its own, with ids that repeat those of the dialog.
    if (const HWND direct = GetDlgItem(parent, id)) {
        return direct;
    }
    ChildSearch search{id, nullptr};
    EnumChildWindows(parent, matchChild, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

struct TextSearch
{
    const std::wstring& text;
    HWND found;
};

BOOL CALLBACK matchText(HWND window, LPARAM argument)
{
    auto& search = *reinterpret_cast<TextSearch*>(argument);
    if (!hasClass(window, WC_BUTTONW) || windowText(window) != search.text) {
        return TRUE;
    }
    search.found = window;
    return FALSE;
}

struct ClassSearch
{
    const wchar_t* name;
    HWND found;
};

BOOL CALLBACK matchCustomClass(HWND window, LPARAM argument)
{
    auto& search = *reinterpret_cast<ClassSearch*>(argument);
    if (GetDlgCtrlID(window) < firstCustomControl || !hasClass(window, search.name)) {
        return TRUE;
    }
    search.found = window;
    return FALSE;
}

BOOL CALLBACK matchWords(HWND window, LPARAM argument)
{
    auto& words = *reinterpret_cast<std::wstring*>(argument);
    if (hasClass(window, WC_STATICW)) {
        words += windowText(window); // that of the icon is empty
    }
    return TRUE;
}

HWND waitForMenu()
{
    HWND menu = nullptr;
    const bool opened = waitUntil([&menu] {
        menu = FindWindowW(menuClass, nullptr);
        return menu && isOurs(menu) && IsWindowVisible(menu);
    });
    return opened ? menu : nullptr;
}

bool takeEntry(HWND menu, int index)
{
    for (int i = 0; i <= index; ++i) {
        PostMessageW(menu, WM_KEYDOWN, VK_DOWN, 0);
    }
    return PostMessageW(menu, WM_KEYDOWN, VK_RETURN, 0) != 0;
}

BOOL CALLBACK matchList(HWND window, LPARAM argument)
{
    if (!hasClass(window, WC_LISTVIEWW)) {
        return TRUE;
    }
    *reinterpret_cast<HWND*>(argument) = window;
    return FALSE;
}

BOOL CALLBACK matchFileDialog(HWND window, LPARAM argument)
{
    const bool matches = isOurs(window) && hasClass(window, dialogClass) && IsWindowVisible(window) &&
                         findChild(window, NativeDialog::Name) != nullptr;
    if (!matches) {
        return TRUE;
    }
    *reinterpret_cast<HWND*>(argument) = window;
    return FALSE;
}

} // namespace

bool waitUntil(const std::function<bool()>& condition, int seconds)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) {
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return true;
}

int NativeDialog::customControl(int index)
{
    return firstCustomControl + index;
}

HWND NativeDialog::waitForWindow(int seconds)
{
    HWND window = nullptr;
    waitUntil(
        [&window] {
            EnumWindows(matchFileDialog, reinterpret_cast<LPARAM>(&window));
            return window != nullptr;
        },
        seconds);
    return window;
}

NativeDialog::NativeDialog(HWND window) : m_window(window) {}

HWND NativeDialog::window() const
{
    return m_window;
}

bool NativeDialog::isOpen() const
{
    return IsWindow(m_window) && IsWindowVisible(m_window);
}

std::wstring NativeDialog::title() const
{
    return windowText(m_window);
}

std::wstring NativeDialog::name() const
{
    return text(Name);
}

void NativeDialog::setName(const std::wstring& name) const
{
    send(find(Name), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(name.c_str()));
}

void NativeDialog::accept() const
{
    press(Accept);
}

void NativeDialog::accept(const std::wstring& name) const
{
    setName(name);
    accept();
}

void NativeDialog::cancel() const
{
    press(Cancel);
}

std::vector<std::wstring> NativeDialog::types() const
{
    const HWND combo = find(Types);
    const LRESULT count = send(combo, CB_GETCOUNT);
    std::vector<std::wstring> result;
    for (WPARAM i = 0; i < static_cast<WPARAM>(count); ++i) {
        std::wstring text(static_cast<std::size_t>(send(combo, CB_GETLBTEXTLEN, i)) + 1, L'\0');
        const LRESULT length = send(combo, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(text.data()));
        text.resize(static_cast<std::size_t>(length));
        result.push_back(text);
    }
    return result;
}

int NativeDialog::typeIndex() const
{
    return static_cast<int>(send(find(Types), CB_GETCURSEL));
}

void NativeDialog::chooseType(int index) const
{
    const HWND combo = find(Types);
    send(combo, CB_SETCURSEL, static_cast<WPARAM>(index));
    send(GetParent(combo), WM_COMMAND, MAKEWPARAM(Types, CBN_SELCHANGE), reinterpret_cast<LPARAM>(combo));
}

HWND NativeDialog::list() const
{
    HWND list = nullptr;
    EnumChildWindows(m_window, matchList, reinterpret_cast<LPARAM>(&list));
    return list;
}

int NativeDialog::listedFiles() const
{
    return static_cast<int>(send(list(), LVM_GETITEMCOUNT));
}

int NativeDialog::positionOf(const std::wstring& name) const
{
    const int count = listedFiles();
    for (int i = 0; i < count; ++i) {
        wchar_t text[260] = {};
        LVITEMW item{};
        item.pszText = text;
        item.cchTextMax = 260;
        send(list(), LVM_GETITEMTEXTW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
        if (name == text) {
            return i;
        }
    }
    return -1;
}

bool NativeDialog::lists(const std::wstring& name) const
{
    return positionOf(name) >= 0;
}

bool NativeDialog::selectFile(const std::wstring& name) const
{
    const int position = positionOf(name);
    if (position < 0) {
        return false;
    }
    LVITEMW item{};
    item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    item.state = item.stateMask;
    return SendMessageW(list(), LVM_SETITEMSTATE, static_cast<WPARAM>(position), reinterpret_cast<LPARAM>(&item)) != 0;
}

void NativeDialog::clickOn(int control) const
{
    RECT area{};
    GetWindowRect(find(control), &area);
    clickAt({(area.left + area.right) / 2, (area.top + area.bottom) / 2}, false);
}

bool NativeDialog::clickFile(const std::wstring& name, bool withControl) const
{
    const int position = positionOf(name);
    if (position < 0) {
        return false;
    }
    const HWND files = list();
    send(files, LVM_ENSUREVISIBLE, static_cast<WPARAM>(position), FALSE);
    RECT area{};
    area.left = LVIR_LABEL;
    send(files, LVM_GETITEMRECT, static_cast<WPARAM>(position), reinterpret_cast<LPARAM>(&area));
    POINT middle{(area.left + area.right) / 2, (area.top + area.bottom) / 2};
    ClientToScreen(files, &middle);
    clickAt(middle, withControl);
    return true;
}

bool NativeDialog::exists(int control) const
{
    return find(control) != nullptr;
}

std::wstring NativeDialog::text(int control) const
{
    return windowText(find(control));
}

void NativeDialog::press(int control) const
{
    // Posted, because the action of the button may take long; it may show a message box, for instance.
    PostMessageW(find(control), BM_CLICK, 0, 0);
}

void NativeDialog::click(int control) const
{
    SendMessageW(find(control), BM_CLICK, 0, 0);
}

int NativeDialog::controlWithText(const std::wstring& text) const
{
    TextSearch search{text, nullptr};
    EnumChildWindows(m_window, matchText, reinterpret_cast<LPARAM>(&search));
    return search.found ? GetDlgCtrlID(search.found) : 0;
}

bool NativeDialog::isChecked(int control) const
{
    return send(find(control), BM_GETCHECK) == BST_CHECKED;
}

bool NativeDialog::isEnabled(int control) const
{
    const HWND window = find(control);
    return window && IsWindowEnabled(window);
}

bool NativeDialog::isVisible(int control) const
{
    const HWND window = find(control);
    return window && IsWindowVisible(window);
}

HWND NativeDialog::customControlOfClass(const wchar_t* name) const
{
    ClassSearch search{name, nullptr};
    EnumChildWindows(m_window, matchCustomClass, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

bool NativeDialog::chooseFromCustomList(int position) const
{
    const HWND combo = customControlOfClass(WC_COMBOBOXW);
    if (!combo) {
        return false;
    }
    send(combo, CB_SETCURSEL, static_cast<WPARAM>(position));
    const auto id = static_cast<WORD>(GetDlgCtrlID(combo));
    send(GetParent(combo), WM_COMMAND, MAKEWPARAM(id, CBN_SELCHANGE), reinterpret_cast<LPARAM>(combo));
    return true;
}

bool NativeDialog::setCustomText(const std::wstring& text) const
{
    const HWND edit = customControlOfClass(WC_EDITW);
    return edit && send(edit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str())) != 0;
}

std::wstring NativeDialog::customListText() const
{
    const HWND combo = customControlOfClass(WC_COMBOBOXW);
    return combo ? windowText(combo) : std::wstring();
}

bool NativeDialog::chooseAcceptOption(int index) const
{
    press(AcceptArrow);
    const HWND menu = waitForMenu();
    return menu && takeEntry(menu, index);
}

bool NativeDialog::takeMenuEntry(const std::wstring& text)
{
    const HWND window = waitForMenu();
    const auto menu = reinterpret_cast<HMENU>(send(window, MN_GETHMENU));
    for (int i = 0; i < GetMenuItemCount(menu); ++i) {
        wchar_t entry[64] = {};
        GetMenuStringW(menu, static_cast<UINT>(i), entry, 64, MF_BYPOSITION);
        if (text == entry) {
            return takeEntry(window, i);
        }
    }
    return false;
}

bool NativeDialog::waitForQuestion(int seconds) const
{
    return waitUntil([this] { return hasQuestion(); }, seconds);
}

bool NativeDialog::hasQuestion() const
{
    return question() != nullptr;
}

std::wstring NativeDialog::questionTitle() const
{
    return windowText(question());
}

std::wstring NativeDialog::questionText() const
{
    std::wstring words;
    EnumChildWindows(question(), matchWords, reinterpret_cast<LPARAM>(&words));
    return words;
}

void NativeDialog::answer(int button) const
{
    PostMessageW(findChild(question(), button), BM_CLICK, 0, 0);
}

HWND NativeDialog::find(int control) const
{
    return findChild(m_window, control);
}

HWND NativeDialog::question() const
{
    const HWND popup = GetLastActivePopup(m_window);
    return popup != m_window && popup && hasClass(popup, dialogClass) && IsWindowVisible(popup) ? popup : nullptr;
}

} // namespace morvane::test
