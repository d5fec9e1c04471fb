# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

import os
import re

from conan import ConanFile
from conan.errors import ConanInvalidConfiguration
from conan.tools.build import check_min_cppstd
from conan.tools.cmake import CMake, CMakeDeps, CMakeToolchain, cmake_layout
from conan.tools.files import copy, load

required_conan_version = ">=2.0"


class MorvaneConan(ConanFile):
    """Builds the source tree that this recipe is a part of. It fetches no sources."""

    name = "morvane"
    description = "Qt Widgets building blocks for desktop engineering applications"
    license = "MIT"
    package_type = "shared-library"
    settings = "os", "arch", "compiler", "build_type"
    options = {"qt_major": ["5", "6"], "testing": [True, False]}
    # Qt must exist once in a program, so it must be shared.
    default_options = {"qt_major": "5", "testing": False, "qt/*:shared": True}

    def set_version(self):
        project = load(self, os.path.join(self.recipe_folder, "..", "..", "CMakeLists.txt"))
        self.version = re.search(r"project\(Morvane VERSION ([0-9.]+)", project).group(1)

    def export_sources(self):
        tree = os.path.join(self.recipe_folder, "..", "..")
        # The project configures docs/, too.
        documents = ["docs/CMakeLists.txt", "docs/Doxyfile.in"]
        for pattern in ["CMakeLists.txt", "LICENSE", "cmake/*", "common/*", "compat/*", *documents]:
            copy(self, pattern, tree, self.export_sources_folder)

    def layout(self):
        self.folders.root = os.path.join("..", "..")
        cmake_layout(self)

    def requirements(self):
        # The installed headers include both.
        qt_versions = "[>=6.4 <7]" if self.options.qt_major == "6" else "[>=5.15 <6]"
        self.requires(f"qt/{qt_versions}", transitive_headers=True, transitive_libs=True)
        self.requires("boost/[>=1.74 <2]", transitive_headers=True)

    def build_requirements(self):
        self.tool_requires("cmake/[>=3.25]")

    def validate(self):
        check_min_cppstd(self, 17)
        if not self.dependencies["qt"].options.shared:
            raise ConanInvalidConfiguration("Morvane needs qt/*:shared=True")

    def generate(self):
        toolchain = CMakeToolchain(self)
        toolchain.cache_variables["MORVANE_QT_MAJOR"] = str(self.options.qt_major)
        toolchain.cache_variables["MORVANE_BUILD_TESTS"] = False
        toolchain.cache_variables["MORVANE_BUILD_EXAMPLES"] = False
        toolchain.cache_variables["MORVANE_BUILD_TESTING_LIBRARY"] = bool(self.options.testing)
        # CMakeDeps makes no package Qt5UiPlugin or Qt6UiPlugin, which the plugin for Qt Designer needs.
        toolchain.cache_variables["MORVANE_BUILD_DESIGNER"] = "OFF"
        toolchain.generate()
        CMakeDeps(self).generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self):
        CMake(self).install()
        copy(self, "LICENSE", self.source_folder, os.path.join(self.package_folder, "licenses"))

    def package_info(self):
        suffix = "-qt6" if self.options.qt_major == "6" else ""
        # Programs use the CMake package that Morvane installs.
        self.cpp_info.set_property("cmake_find_mode", "none")

        host = self._component("host", suffix, requires=["qt::qtCore", "boost::headers"])
        host.libs = [f"morvane-host{suffix}"]
        host.builddirs = [os.path.join("lib", "cmake", "Morvane-Qt6" if suffix else "Morvane")]

        self._component("property", suffix, requires=["host"])

        ui = self._component("ui", suffix, requires=["host", "property", "qt::qtWidgets", "boost::filesystem"])
        ui.libs = [f"morvane-ui{suffix}"]

        if self.options.testing:
            testing = self._component("testing", suffix, requires=["ui"])
            testing.libs = [f"morvane-testing{suffix}"]

    def _component(self, name, suffix, requires):
        component = self.cpp_info.components[name]
        component.includedirs = [os.path.join("include", f"morvane{suffix}")]
        component.libs = []
        component.requires = requires
        component.set_property("pkg_config_name", f"morvane-{name}{suffix}")
        return component
