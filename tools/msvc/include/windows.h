// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// What Wine's headers lack.
#pragma once
#include_next <windows.h>

#define GR_GDIOBJECTS 0
#define GR_USEROBJECTS 1

extern "C" __declspec(dllimport) BOOL WINAPI GetProcessHandleCount(HANDLE, DWORD*);
