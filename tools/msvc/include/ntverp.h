// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Boost.Predef takes the version of the Windows SDK from this header; Wine has none. The number is that of Windows 10.
#pragma once
#define VER_PRODUCTBUILD 10011
