# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

"""CMake runs in earnest. Qt and Boost are those of the system; what the recipe requires of Morvane is on the prefix path."""

import os
import subprocess


def cmake_layout(conanfile):
    build_type = str(conanfile.settings.build_type)
    conanfile.folders.source = "."
    conanfile.folders.build = os.path.join("build", build_type)
    conanfile.folders.generators = os.path.join("build", build_type, "generators")
    conanfile.cpp.build.bindirs = ["."]


class CMakeDeps:
    def __init__(self, conanfile):
        self._conanfile = conanfile

    def generate(self):
        self._conanfile.calls.append(("CMakeDeps",))


class CMakeToolchain:
    def __init__(self, conanfile):
        self._conanfile = conanfile
        self.cache_variables = {}

    def generate(self):
        """The recipe's variables are for the command line; everything else is in the toolchain file."""
        conanfile = self._conanfile
        conanfile.calls.append(("CMakeToolchain",))
        conanfile.cache_variables = dict(self.cache_variables)
        variables = {
            "CMAKE_BUILD_TYPE": str(conanfile.settings.build_type),
            "CMAKE_CXX_FLAGS_RELEASE": "-O0",
            "CMAKE_INSTALL_LIBDIR": "lib",
            "CMAKE_PREFIX_PATH": ";".join(conanfile.prefix_path),
            "CMAKE_UNITY_BUILD": "ON",
        }
        os.makedirs(conanfile.build_folder, exist_ok=True)
        with open(_toolchain_file(conanfile), "w", encoding="utf-8") as file:
            file.writelines(f'set({name} "{value}" CACHE STRING "")\n' for name, value in variables.items())


def _toolchain_file(conanfile):
    return os.path.join(conanfile.build_folder, "conan_toolchain.cmake")


def _text(value):
    return {True: "ON", False: "OFF"}[value] if isinstance(value, bool) else str(value)


class CMake:
    def __init__(self, conanfile):
        self._conanfile = conanfile

    def _run(self, *arguments):
        result = subprocess.run(
            ["cmake", *arguments], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False
        )
        if result.returncode != 0 or "Manually-specified variables were not used" in result.stdout:
            raise SystemExit(f"cmake {' '.join(arguments)}\n{result.stdout}")

    def configure(self):
        conanfile = self._conanfile
        variables = [f"-D{name}={_text(value)}" for name, value in conanfile.cache_variables.items()]
        toolchain = f"-DCMAKE_TOOLCHAIN_FILE={_toolchain_file(conanfile)}"
        self._run("-S", conanfile.source_folder, "-B", conanfile.build_folder, toolchain, *variables)

    def build(self):
        self._run("--build", self._conanfile.build_folder)

    def install(self):
        self._run("--install", self._conanfile.build_folder, "--prefix", self._conanfile.package_folder)
