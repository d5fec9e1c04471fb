# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

"""Runs the Conan recipe and its test package with stand-ins for what Conan gives them: once in earnest, and for every
choice of options up to what it tells CMake. Usage: check_recipe.py SOURCE_TREE WORK_DIR VERSION QT_MAJOR"""

import importlib.util
import inspect
import os
import shutil
import sys
from glob import glob

sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "stand_ins"))

from conan import ConanFile
from conan.errors import ConanInvalidConfiguration
from conan.tools.cmake import CMakeToolchain

SETTINGS = {"os": "Linux", "arch": "x86_64", "compiler": "gcc", "build_type": "Release"}


def expect(what, actual, wanted):
    if actual != wanted:
        raise SystemExit(f"{what}: {actual!r}, not {wanted!r}")


def recipe_class(path):
    spec = importlib.util.spec_from_file_location("recipe", path)
    module = importlib.util.module_from_spec(spec)
    spec.loader.exec_module(module)
    classes = [one for _, one in inspect.getmembers(module, inspect.isclass) if one.__module__ == "recipe"]
    (only,) = classes
    assert issubclass(only, ConanFile)
    return only


class Recipe:
    """The recipe in the tree, made anew for each choice of options."""

    def __init__(self, tree, work):
        self.work = work
        self.folder = os.path.join(tree, "packaging", "conan")
        self.type = recipe_class(os.path.join(self.folder, "conanfile.py"))

    def make(self, options, cppstd="17"):
        conanfile = self.type(SETTINGS, options, self.folder)
        conanfile.settings.compiler_cppstd = cppstd
        conanfile.base_folder = self.work
        conanfile.set_version()
        conanfile.layout()
        conanfile.requirements()
        conanfile.build_requirements()
        return conanfile


def check_options(recipe):
    for qt_major, versions in (("5", "[>=5.15 <6]"), ("6", "[>=6.4 <7]")):
        for testing in (True, False):
            conanfile = recipe.make({"qt_major": qt_major, "testing": testing})
            conanfile.validate()
            conanfile.generate()
            for call in (
                ("requires", f"qt/{versions}"),
                ("requires", "boost/[>=1.74 <2]"),
                ("tool_requires", "cmake/[>=3.25]"),
                ("CMakeDeps",),
                ("CMakeToolchain",),
            ):
                expect(f"calls of {call}", conanfile.calls.count(call), 1)
            for name, wanted in (
                ("MORVANE_QT_MAJOR", qt_major),
                ("MORVANE_BUILD_TESTING_LIBRARY", testing),
                ("MORVANE_BUILD_TESTS", False),
                ("MORVANE_BUILD_EXAMPLES", False),
                ("MORVANE_BUILD_DESIGNER", "OFF"),
            ):
                expect(name, conanfile.cache_variables[name], wanted)


def check_refusals(recipe):
    def is_refused(conanfile):
        try:
            conanfile.validate()
        except ConanInvalidConfiguration:
            return True
        return False

    expect("C++17 is refused", is_refused(recipe.make({})), False)
    expect("C++14 is refused", is_refused(recipe.make({}, cppstd="14")), True)
    with_static_qt = recipe.make({})
    with_static_qt.dependencies["qt"].options.shared = False
    expect("static Qt is refused", is_refused(with_static_qt), True)


def create(recipe, work, options):
    """Like `conan create`: builds from the exported files alone and installs."""
    conanfile = recipe.make(options)
    conanfile.export_sources_folder = conanfile.source_base_folder = os.path.join(work, "source")
    conanfile.export_sources()
    conanfile.package_folder = os.path.join(work, "package")
    conanfile.generate()
    conanfile.build()
    conanfile.package()
    conanfile.package_info()
    return conanfile


def check_package(conanfile, suffix):
    """What the recipe says about the package is there."""
    package = conanfile.package_folder
    components = conanfile.cpp_info.components
    expect("components", sorted(components), ["host", "property", "testing", "ui"])
    expect("the licence", os.path.isfile(os.path.join(package, "licenses", "LICENSE")), True)
    libraries = []
    for name, component in components.items():
        for folder in component.includedirs + component.builddirs:
            expect(f"{folder} exists", os.path.isdir(os.path.join(package, folder)), True)
        for library in component.libs:
            (path,) = glob(os.path.join(package, "lib", f"lib{library}.so")) + glob(
                os.path.join(package, "lib", f"lib{library}.a")
            )
            libraries.append(os.path.basename(path))
        pkg_config = os.path.join(package, "lib", "pkgconfig", component.properties["pkg_config_name"] + ".pc")
        expect(f"{pkg_config} exists", os.path.isfile(pkg_config), True)
        for required in component.requires:
            expect(f"{name} requires {required}", "::" in required or required in components, True)
    installed = [os.path.basename(path) for path in glob(os.path.join(package, "lib", "*morvane*"))]
    expect("libraries", sorted(libraries), sorted(one for one in installed if one.endswith((".so", ".a"))))
    used = {one.split("::")[0] for component in components.values() for one in component.requires if "::" in one}
    required = {call[1].split("/")[0] for call in conanfile.calls if call[0] == "requires"}
    expect("packages that components use", used, required)


def run_test_package(recipe, work, created):
    folder = os.path.join(recipe.folder, "test_package")
    tester = recipe_class(os.path.join(folder, "conanfile.py"))(SETTINGS, {}, folder)
    tester.tested_reference_str = f"{created.name}/{created.version}"
    tester.requirements()
    tester.build_requirements()
    tester.layout()
    tester.source_base_folder = folder
    tester.base_folder = os.path.join(work, "test_package")
    # Conan makes the generators that are named, and these put the directories with CMake packages on the prefix path.
    expect("generators", sorted(tester.generators), ["CMakeDeps", "CMakeToolchain"])
    builddirs = [folder for one in created.cpp_info.components.values() for folder in one.builddirs]
    tester.prefix_path = [os.path.join(created.package_folder, folder) for folder in builddirs]
    CMakeToolchain(tester).generate()
    tester.build()
    tester.test()
    expect("programs that were run", [call[0] for call in tester.calls].count("run"), 1)


def main():
    tree, work, version, qt_major = sys.argv[1:]
    shutil.rmtree(work, ignore_errors=True)
    recipe = Recipe(tree, os.path.join(work, "work"))
    default = recipe.make({})
    expect("the version", default.version, version)
    expect("the root for builds in the tree", os.path.normpath(os.path.join(recipe.folder, default.folders.root)), tree)
    check_options(recipe)
    check_refusals(recipe)
    created = create(recipe, work, {"qt_major": qt_major, "testing": True})
    check_package(created, "-qt6" if qt_major == "6" else "")
    run_test_package(recipe, work, created)


main()
