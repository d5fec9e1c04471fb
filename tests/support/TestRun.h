// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

namespace morvane::test {

/**
 * Runs the GoogleTest cases of the program, with a private home directory, a fixed locale and a QApplication. Uses
 * Qt's offscreen platform unless the environment names another one. Returns the exit code of the program.
 */
int runTests(int argc, char** argv);

} // namespace morvane::test
