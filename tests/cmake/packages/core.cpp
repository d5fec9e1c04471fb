// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The function in the core of a package that its widgets call. CORE is its name.
int CORE();

int CORE()
{
    return 1;
}
