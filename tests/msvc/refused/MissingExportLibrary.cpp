// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "MissingExport.h"

int exportedFunction()
{
    return 1;
}

ExportedClass::ExportedClass() = default;

ExportedClass::~ExportedClass() = default;

int ExportedClass::value() const
{
    return 1;
}

int ExportedClass::count = 1;
