// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

/**
 * @file
 * The plain types, flags and result codes that ShellInterfaces.h needs where there is no Windows SDK. Do not include
 * this header; include ShellInterfaces.h.
 */

#ifdef _WIN32
#error "the SDK declares these"
#endif

#include <cstdint>

// These are the SDK's names. NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)

using BOOL = int;
using UINT = std::uint32_t;
using LONG = std::int32_t;
using ULONG = std::uint32_t;
using DWORD = std::uint32_t;
using HRESULT = LONG;
using WCHAR = char16_t;
using LPWSTR = WCHAR*;
using LPCWSTR = const WCHAR*;
using PWSTR = WCHAR*;
using PCWSTR = const WCHAR*;
using HWND = struct HWND__*; ///< the window system's identifier of the window, as QWidget::winId() returns it

#ifndef TRUE
#define TRUE 1
#endif
#ifndef FALSE
#define FALSE 0
#endif
#define STDMETHODCALLTYPE

struct GUID
{
    std::uint32_t Data1;
    std::uint16_t Data2;
    std::uint16_t Data3;
    std::uint8_t Data4[8];
};
using IID = GUID;
using CLSID = GUID;
using REFGUID = const GUID&;
using REFIID = const IID&;
using REFCLSID = const CLSID&;

constexpr bool operator==(const GUID& left, const GUID& right)
{
    bool equal = left.Data1 == right.Data1 && left.Data2 == right.Data2 && left.Data3 == right.Data3;
    for (int i = 0; i < 8; ++i) {
        equal = equal && left.Data4[i] == right.Data4[i];
    }
    return equal;
}
constexpr bool operator!=(const GUID& left, const GUID& right)
{
    return !(left == right);
}

constexpr bool SUCCEEDED(HRESULT result)
{
    return result >= 0;
}
constexpr bool FAILED(HRESULT result)
{
    return result < 0;
}
constexpr HRESULT HRESULT_FROM_WIN32(ULONG error)
{
    return static_cast<HRESULT>(
        static_cast<HRESULT>(error) <= 0 ? error : ((error & 0x0000FFFFu) | (7u << 16) | 0x80000000u));
}

inline constexpr HRESULT S_OK = 0;
inline constexpr HRESULT S_FALSE = 1;
inline constexpr HRESULT E_NOTIMPL = static_cast<HRESULT>(0x80004001u);
inline constexpr HRESULT E_NOINTERFACE = static_cast<HRESULT>(0x80004002u);
inline constexpr HRESULT E_POINTER = static_cast<HRESULT>(0x80004003u);
inline constexpr HRESULT E_ABORT = static_cast<HRESULT>(0x80004004u);
inline constexpr HRESULT E_FAIL = static_cast<HRESULT>(0x80004005u);
inline constexpr HRESULT E_UNEXPECTED = static_cast<HRESULT>(0x8000FFFFu);
inline constexpr HRESULT CLASS_E_NOAGGREGATION = static_cast<HRESULT>(0x80040110u);
inline constexpr HRESULT REGDB_E_CLASSNOTREG = static_cast<HRESULT>(0x80040154u);
inline constexpr HRESULT CO_E_NOTINITIALIZED = static_cast<HRESULT>(0x800401F0u);
inline constexpr HRESULT RPC_E_CHANGED_MODE = static_cast<HRESULT>(0x80010106u);
inline constexpr HRESULT E_ACCESSDENIED = static_cast<HRESULT>(0x80070005u);
inline constexpr HRESULT E_OUTOFMEMORY = static_cast<HRESULT>(0x8007000Eu);
inline constexpr HRESULT E_INVALIDARG = static_cast<HRESULT>(0x80070057u);

inline constexpr ULONG ERROR_FILE_NOT_FOUND = 2;
inline constexpr ULONG ERROR_PATH_NOT_FOUND = 3;
inline constexpr ULONG ERROR_BUSY = 170;
inline constexpr ULONG ERROR_CANCELLED = 1223;

enum COINIT : DWORD
{
    COINIT_MULTITHREADED = 0x0,
    COINIT_APARTMENTTHREADED = 0x2,
    COINIT_DISABLE_OLE1DDE = 0x4,
    COINIT_SPEED_OVER_MEMORY = 0x8
};
enum CLSCTX : DWORD
{
    CLSCTX_INPROC_SERVER = 0x1,
    CLSCTX_INPROC_HANDLER = 0x2,
    CLSCTX_LOCAL_SERVER = 0x4
};

struct COMDLG_FILTERSPEC
{
    LPCWSTR pszName; ///< what the user reads
    LPCWSTR pszSpec; ///< patterns separated by semicolons
};

/** One row of a table for QISearch. A row without an identifier ends the table. */
struct QITAB
{
    const IID* piid;
    DWORD dwOffset; ///< offset of the interface in the object, in bytes
};

using FILEOPENDIALOGOPTIONS = DWORD;
enum _FILEOPENDIALOGOPTIONS : DWORD
{
    FOS_OVERWRITEPROMPT = 0x2,
    FOS_STRICTFILETYPES = 0x4,
    FOS_NOCHANGEDIR = 0x8,
    FOS_PICKFOLDERS = 0x20,
    FOS_FORCEFILESYSTEM = 0x40,
    FOS_ALLNONSTORAGEITEMS = 0x80,
    FOS_NOVALIDATE = 0x100,
    FOS_ALLOWMULTISELECT = 0x200,
    FOS_PATHMUSTEXIST = 0x800,
    FOS_FILEMUSTEXIST = 0x1000,
    FOS_CREATEPROMPT = 0x2000,
    FOS_SHAREAWARE = 0x4000,
    FOS_NOREADONLYRETURN = 0x8000,
    FOS_NOTESTFILECREATE = 0x10000,
    FOS_HIDEMRUPLACES = 0x20000,
    FOS_HIDEPINNEDPLACES = 0x40000,
    FOS_NODEREFERENCELINKS = 0x100000,
    FOS_DONTADDTORECENT = 0x2000000,
    FOS_FORCESHOWHIDDEN = 0x10000000,
    FOS_DEFAULTNOMINIMODE = 0x20000000,
    FOS_FORCEPREVIEWPANEON = 0x40000000,
    FOS_SUPPORTSTREAMABLEITEMS = 0x80000000
};

/** As in the SDK, the enumerators can be combined. The operators return the enumeration type. */
enum CDCONTROLSTATEF : DWORD
{
    CDCS_INACTIVE = 0x0,
    CDCS_ENABLED = 0x1,
    CDCS_VISIBLE = 0x2,
    CDCS_ENABLEDVISIBLE = 0x3
};
constexpr CDCONTROLSTATEF operator|(CDCONTROLSTATEF left, CDCONTROLSTATEF right)
{
    return static_cast<CDCONTROLSTATEF>(static_cast<DWORD>(left) | static_cast<DWORD>(right));
}
constexpr CDCONTROLSTATEF operator&(CDCONTROLSTATEF left, CDCONTROLSTATEF right)
{
    return static_cast<CDCONTROLSTATEF>(static_cast<DWORD>(left) & static_cast<DWORD>(right));
}
constexpr CDCONTROLSTATEF operator~(CDCONTROLSTATEF state)
{
    return static_cast<CDCONTROLSTATEF>(~static_cast<DWORD>(state));
}

enum SIGDN : std::int32_t
{
    SIGDN_NORMALDISPLAY = 0,
    SIGDN_PARENTRELATIVEPARSING = static_cast<std::int32_t>(0x80018001u),
    SIGDN_DESKTOPABSOLUTEPARSING = static_cast<std::int32_t>(0x80028000u),
    SIGDN_PARENTRELATIVEEDITING = static_cast<std::int32_t>(0x80031001u),
    SIGDN_DESKTOPABSOLUTEEDITING = static_cast<std::int32_t>(0x8004c000u),
    SIGDN_FILESYSPATH = static_cast<std::int32_t>(0x80058000u),
    SIGDN_URL = static_cast<std::int32_t>(0x80068000u),
    SIGDN_PARENTRELATIVEFORADDRESSBAR = static_cast<std::int32_t>(0x8007c001u),
    SIGDN_PARENTRELATIVE = static_cast<std::int32_t>(0x80080001u),
    SIGDN_PARENTRELATIVEFORUI = static_cast<std::int32_t>(0x80094001u)
};

using SFGAOF = ULONG;
inline constexpr SFGAOF SFGAO_LINK = 0x00010000;
inline constexpr SFGAOF SFGAO_READONLY = 0x00040000;
inline constexpr SFGAOF SFGAO_HIDDEN = 0x00080000;
inline constexpr SFGAOF SFGAO_STREAM = 0x00400000;
inline constexpr SFGAOF SFGAO_FILESYSANCESTOR = 0x10000000;
inline constexpr SFGAOF SFGAO_FOLDER = 0x20000000;
inline constexpr SFGAOF SFGAO_FILESYSTEM = 0x40000000;

using SICHINTF = DWORD;
enum _SICHINTF : DWORD
{
    SICHINT_DISPLAY = 0,
    SICHINT_CANONICAL = 0x10000000,
    SICHINT_TEST_FILESYSPATH_IF_NOT_EQUAL = 0x20000000,
    SICHINT_ALLFIELDS = 0x80000000
};

enum SIATTRIBFLAGS : DWORD
{
    SIATTRIBFLAGS_AND = 0x1,
    SIATTRIBFLAGS_OR = 0x2,
    SIATTRIBFLAGS_APPCOMPAT = 0x3,
    SIATTRIBFLAGS_MASK = 0x3,
    SIATTRIBFLAGS_ALLITEMS = 0x4000
};

enum GETPROPERTYSTOREFLAGS : DWORD
{
    GPS_DEFAULT = 0
};
struct PROPERTYKEY
{
    GUID fmtid;
    DWORD pid;
};
using REFPROPERTYKEY = const PROPERTYKEY&;

enum FDAP
{
    FDAP_BOTTOM = 0,
    FDAP_TOP = 1
};
enum FDE_OVERWRITE_RESPONSE
{
    FDEOR_DEFAULT = 0,
    FDEOR_ACCEPT = 1,
    FDEOR_REFUSE = 2
};
enum FDE_SHAREVIOLATION_RESPONSE
{
    FDESVR_DEFAULT = 0,
    FDESVR_ACCEPT = 1,
    FDESVR_REFUSE = 2
};

// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
