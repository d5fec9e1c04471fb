// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#ifdef refused_library_EXPORTS
#define REFUSED_EXPORT __declspec(dllexport)
#else
#define REFUSED_EXPORT __declspec(dllimport)
#endif

#ifdef FAULT
#define REFUSED_FORGOTTEN
#else
#define REFUSED_FORGOTTEN REFUSED_EXPORT
#endif

REFUSED_FORGOTTEN int exportedFunction();

class REFUSED_FORGOTTEN ExportedClass
{
public:
    ExportedClass();
    virtual ~ExportedClass();
    int value() const;
    static int count;
};
