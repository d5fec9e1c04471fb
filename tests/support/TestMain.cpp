// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "support/TestRun.h"

int main(int argc, char** argv)
{
    return morvane::test::runTests(argc, argv);
}
