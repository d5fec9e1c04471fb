// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Makes the library of the widgets depend on the library of the core: it calls the function CORE there.
int CORE();

extern const int answerOfCore;
const int answerOfCore = CORE();
