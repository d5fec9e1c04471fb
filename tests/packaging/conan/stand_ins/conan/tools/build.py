# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

from conan.errors import ConanInvalidConfiguration


def check_min_cppstd(conanfile, cppstd):
    if int(conanfile.settings.compiler_cppstd) < cppstd:
        raise ConanInvalidConfiguration(f"C++{cppstd} is needed")


def can_run(conanfile):
    return True
